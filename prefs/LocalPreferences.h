#pragma once

#include "values/PlistValue.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

class PreferenceStore;
class PreferenceStores;
class RuleList;

/// The application's own preferences: the full lists, all switches, the remembered folders. The extension
/// never reads them. One object serves the process; until `open` it holds nothing and drops every write.
class LocalPreferences {
public:
    LocalPreferences();
    ~LocalPreferences();

    /// Takes a handle on the standard domain in place of any earlier one.
    void open(PreferenceStores& stores);

    [[nodiscard]] bool contains(std::string_view key) const { return value(key).has_value(); }
    [[nodiscard]] std::optional<PlistValue> value(std::string_view key) const;
    /// The boolean by the flag rule; absent or of another kind reads as false.
    [[nodiscard]] bool flag(std::string_view key) const;
    /// The string; nothing when absent or of another kind.
    [[nodiscard]] std::optional<std::string> text(std::string_view key) const;
    /// Whether an array is stored under `key`.
    [[nodiscard]] bool containsArray(std::string_view key) const;

    void set(std::string_view key, const PlistValue& value);
    void remove(std::string_view key);
    void synchronize();

    /// Writes the whole list under its list key, leaving it to the platform when that reaches the disk.
    void store(const RuleList& list);
    /// Writes the whole list under its list key, then synchronises.
    void storeAndSynchronize(const RuleList& list);

private:
    std::unique_ptr<PreferenceStore> store_;
};

} // namespace tarnwick
