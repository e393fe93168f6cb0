#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/RunningApplications.h"

#import <AppKit/AppKit.h>

namespace tarnwick {
namespace {

class AppKitRunningApplications final : public RunningApplications {
public:
    bool isRunning(std::string_view bundleIdentifier) const override {
        return [running(bundleIdentifier) count] > 0;
    }
    void terminateAll(std::string_view bundleIdentifier) override {
        for (NSRunningApplication *application in running(bundleIdentifier)) {
            [application terminate];
        }
    }

private:
    static NSArray *running(std::string_view bundleIdentifier) {
        return [NSRunningApplication runningApplicationsWithBundleIdentifier:toNSString(bundleIdentifier)];
    }
};

} // namespace

std::unique_ptr<RunningApplications> makeRunningApplications() {
    return std::make_unique<AppKitRunningApplications>();
}

} // namespace tarnwick
