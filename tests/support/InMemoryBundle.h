#pragma once

#include "platform/ApplicationBundle.h"
#include "tests/support/CallLog.h"

#include <functional>
#include <map>
#include <string>

namespace tarnwick::testing {

/// Resources at "/resources"; every text is localised to itself unless `texts` says otherwise. Logs "ask
/// whether the extension is enabled" and "show extension management".
class InMemoryBundle final : public ApplicationBundle {
public:
    explicit InMemoryBundle(CallLog& log) : log_(log) {}

    std::map<std::string, std::string, std::less<>> texts;
    std::string version = "1.2.3";
    bool loginItem = false;
    bool extension = true;
    bool extensionEnabled = true;

    std::string localized(std::string_view key) const override {
        const auto found = texts.find(key);
        return found == texts.end() ? std::string(key) : found->second;
    }
    std::string path() const override { return "/Applications/Tarnwick.app"; }
    bool carriesExtension() const override { return extension; }
    std::string resourceFolder() const override { return "/resources"; }
    std::string plugInsFolder() const override { return "/app/PlugIns"; }
    std::string shortVersion() const override { return version; }
    bool isLoginItem() const override { return loginItem; }
    bool isExtensionEnabled() const override {
        log_.add("ask whether the extension is enabled");
        return extensionEnabled;
    }
    void showExtensionManagementInterface() override { log_.add("show extension management"); }

private:
    CallLog& log_;
};

} // namespace tarnwick::testing
