#pragma once

#include "values/PlistValue.h"

#include <memory>
#include <optional>
#include <string_view>

namespace tarnwick {

class PreferenceStore;
class PreferenceStores;

/// A handle on the suite that the Finder extension reads. Whoever writes opens one of its own and drops it
/// afterwards; none is kept.
class SharedPreferences {
public:
    explicit SharedPreferences(PreferenceStores& stores);
    ~SharedPreferences();

    [[nodiscard]] std::optional<PlistValue> value(std::string_view key) const;
    void set(std::string_view key, const PlistValue& value);
    void synchronize();

private:
    std::unique_ptr<PreferenceStore> store_;
};

/// Copies a changed switch of `LocalPreferences` into a new handle on `SharedPreferences`, as a boolean, and
/// synchronises.
void mirrorSwitch(PreferenceStores& stores, std::string_view key, const PlistValue& newValue);

} // namespace tarnwick
