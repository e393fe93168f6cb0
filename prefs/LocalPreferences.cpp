#include "prefs/LocalPreferences.h"

#include "platform/PreferenceStore.h"
#include "prefs/RuleList.h"

namespace tarnwick {

LocalPreferences::LocalPreferences() = default;
LocalPreferences::~LocalPreferences() = default;

void LocalPreferences::open(PreferenceStores& stores) {
    store_ = stores.openStandardDomain();
}

std::optional<PlistValue> LocalPreferences::value(std::string_view key) const {
    return store_ ? store_->value(key) : std::nullopt;
}

bool LocalPreferences::flag(std::string_view key) const {
    const auto stored = value(key);
    return stored && flagValue(*stored).value_or(false);
}

std::optional<std::string> LocalPreferences::text(std::string_view key) const {
    const auto stored = value(key);
    const auto* text = stored ? stored->string() : nullptr;
    return text ? std::optional(*text) : std::nullopt;
}

bool LocalPreferences::containsArray(std::string_view key) const {
    const auto stored = value(key);
    return stored && stored->array();
}

void LocalPreferences::set(std::string_view key, const PlistValue& value) {
    if (store_) {
        store_->setValue(key, value);
    }
}

void LocalPreferences::remove(std::string_view key) {
    if (store_) {
        store_->removeValue(key);
    }
}

void LocalPreferences::synchronize() {
    if (store_) {
        store_->synchronize();
    }
}

void LocalPreferences::store(const RuleList& list) {
    set(factsOf(list.category()).listKey, list.toPlist());
}

void LocalPreferences::storeAndSynchronize(const RuleList& list) {
    store(list);
    synchronize();
}

} // namespace tarnwick
