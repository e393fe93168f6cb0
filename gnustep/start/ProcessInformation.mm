// Missing: the operating system's version as numbers, as of GNUstep Base 1.28.

#import "TNAdditions.h"

#include <cstdio>
#include <sys/utsname.h>
#include <tuple>

@implementation NSProcessInfo (TNOperatingSystemVersion)

- (NSOperatingSystemVersion)operatingSystemVersion {
    int major = 0;
    int minor = 0;
    int patch = 0;
    struct utsname system;
    if (uname(&system) == 0) {
        // Parts that are not there stay zero.
        (void)std::sscanf(system.release, "%d.%d.%d", &major, &minor, &patch);
    }
    return {major, minor, patch};
}

- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version {
    const auto numbers = [](const NSOperatingSystemVersion &value) {
        return std::tuple(value.majorVersion, value.minorVersion, value.patchVersion);
    };
    return numbers([self operatingSystemVersion]) >= numbers(version);
}

@end
