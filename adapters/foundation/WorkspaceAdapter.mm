#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/SystemAdapters.h"
#include "platform/Workspace.h"

#import <AppKit/AppKit.h>

namespace tarnwick {
namespace {

class AppKitWorkspace final : public Workspace {
public:
    void openURL(std::string_view address) override {
        if (NSURL *url = [NSURL URLWithString:toNSString(address)]) {
            [workspace() openURL:url];
        }
    }
    void openFile(const std::string &path) override { [workspace() openFile:toNSString(path)]; }
    void showInFileViewer(const std::string &path) override {
        [workspace() selectFile:toNSString(path) inFileViewerRootedAtPath:@""];
    }
    void launchApplication(const std::string &path) override {
        [workspace() launchApplication:toNSString(path)];
    }
    std::optional<std::string> applicationPath(std::string_view bundleIdentifier) const override {
        NSString *path = [workspace() absolutePathForAppBundleWithIdentifier:toNSString(bundleIdentifier)];
        return path ? std::optional(toString(path)) : std::nullopt;
    }
    RegisteredApplications registeredApplications(std::string_view bundleIdentifier) const override {
        return tarnwick::registeredApplications(bundleIdentifier);
    }
    bool isRunning(std::string_view bundleIdentifier) const override {
        return [running(bundleIdentifier) count] > 0;
    }
    void terminateAll(std::string_view bundleIdentifier) override {
        for (NSRunningApplication *application in running(bundleIdentifier)) {
            [application terminate];
        }
    }

private:
    static NSWorkspace *workspace() { return [NSWorkspace sharedWorkspace]; }
    static NSArray *running(std::string_view bundleIdentifier) {
        return [NSRunningApplication runningApplicationsWithBundleIdentifier:toNSString(bundleIdentifier)];
    }
};

} // namespace

std::unique_ptr<Workspace> makeWorkspace() {
    return std::make_unique<AppKitWorkspace>();
}

} // namespace tarnwick
