#pragma once

#include "values/PlistValue.h"

#include <memory>
#include <optional>
#include <string_view>

namespace tarnwick {

/// An open handle on one preference domain. Reading sees every earlier write of this process at once;
/// `synchronize` brings the writes to disk now instead of on the platform's own schedule.
/// No failure is reported. Implementations: AppKit user defaults, in memory.
class PreferenceStore {
public:
    virtual ~PreferenceStore() = default;
    /// The value under `key`; nothing when absent, which is not the same as false.
    [[nodiscard]] virtual std::optional<PlistValue> value(std::string_view key) const = 0;
    virtual void setValue(std::string_view key, const PlistValue& value) = 0;
    /// From now on `key` is absent.
    virtual void removeValue(std::string_view key) = 0;
    virtual void synchronize() = 0;
};

/// Opens preference domains. Implementations: AppKit user defaults, in memory.
class PreferenceStores {
public:
    virtual ~PreferenceStores() = default;
    /// The application's own standard domain.
    [[nodiscard]] virtual std::unique_ptr<PreferenceStore> openStandardDomain() = 0;
    /// A new handle on a named suite.
    [[nodiscard]] virtual std::unique_ptr<PreferenceStore> openSuite(std::string_view name) = 0;
    /// Whether an administrator has set this key of the standard domain, so that nothing else counts.
    [[nodiscard]] virtual bool isForced(std::string_view key) const = 0;
    /// A string of the standard domain or of the system-wide domain behind it; nothing when absent.
    [[nodiscard]] virtual std::optional<std::string> systemWideString(std::string_view key) const = 0;
};

} // namespace tarnwick
