#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/SystemAdapters.h"

#import <CoreServices/CoreServices.h>
#import <Foundation/Foundation.h>

namespace tarnwick {

RegisteredApplications registeredApplications(std::string_view bundleIdentifier) {
    CFErrorRef error = nullptr;
    const CFArrayRef urls =
        LSCopyApplicationURLsForBundleIdentifier((__bridge CFStringRef)toNSString(bundleIdentifier), &error);
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

} // namespace tarnwick
