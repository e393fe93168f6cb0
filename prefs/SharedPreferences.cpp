#include "prefs/SharedPreferences.h"

#include "platform/PreferenceStore.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleRecord.h"

namespace tarnwick {

SharedPreferences::SharedPreferences(PreferenceStores& stores) : store_(stores.openSuite(sharedSuiteName)) {}
SharedPreferences::~SharedPreferences() = default;

std::optional<PlistValue> SharedPreferences::value(std::string_view key) const {
    return store_->value(key);
}

void SharedPreferences::set(std::string_view key, const PlistValue& value) {
    store_->setValue(key, value);
}

void SharedPreferences::synchronize() {
    store_->synchronize();
}

void mirrorSwitch(PreferenceStores& stores, std::string_view key, const PlistValue& newValue) {
    SharedPreferences shared(stores);
    shared.set(key, flagValue(newValue).value_or(false));
    shared.synchronize();
}

} // namespace tarnwick
