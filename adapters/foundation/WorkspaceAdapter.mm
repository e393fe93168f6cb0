#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/Workspace.h"

#import <AppKit/AppKit.h>

namespace tarnwick {
namespace {

class AppKitWorkspace final : public Workspace {
public:
    explicit AppKitWorkspace(std::function<void()> observe) : observe_(std::move(observe)) {}

    void openURL(std::string_view address) override {
        if (NSURL *url = [NSURL URLWithString:toNSString(address)]) {
            [workspace() openURL:url];
        }
    }
    void launchApplication(const std::string &path) override {
        [workspace() launchApplication:toNSString(path)];
    }
    std::optional<std::string> applicationPath(std::string_view bundleIdentifier) const override {
        NSString *path = [workspace() absolutePathForAppBundleWithIdentifier:toNSString(bundleIdentifier)];
        return path ? std::optional(toString(path)) : std::nullopt;
    }
    void observeApplicationChanges() override { observe_(); }

private:
    static NSWorkspace *workspace() { return [NSWorkspace sharedWorkspace]; }

    std::function<void()> observe_;
};

} // namespace

std::unique_ptr<Workspace> makeWorkspace(std::function<void()> observe) {
    return std::make_unique<AppKitWorkspace>(std::move(observe));
}

} // namespace tarnwick
