#import "adapters/foundation/StringConversion.h"

#include "platform/LaunchServices.h"
#include "platform/SystemServices.h"

#import <CoreServices/CoreServices.h>
#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

class RegisteredCopies final : public LaunchServices {
public:
    RegisteredApplications applications(std::string_view bundleIdentifier) const override {
        CFErrorRef error = nullptr;
        const CFArrayRef urls = LSCopyApplicationURLsForBundleIdentifier(
            (__bridge CFStringRef)toNSString(bundleIdentifier), &error);
        RegisteredApplications result;
        result.failed = error != nullptr;
        for (NSURL *url in (__bridge NSArray *)urls) {
            result.paths.push_back(toString([url path]));
        }
        // Releasing nothing is not allowed here, unlike sending a message to nil.
        if (urls) {
            CFRelease(urls);
        }
        if (error) {
            CFRelease(error);
        }
        return result;
    }
};

} // namespace

std::unique_ptr<LaunchServices> makeLaunchServices() {
    return std::make_unique<RegisteredCopies>();
}

} // namespace tarnwick
