#include "adapters/foundation/SystemAdapters.h"

#import <Foundation/Foundation.h>

namespace tarnwick {

bool isSystemAtLeast(int major, int minor, int patch) {
    const NSOperatingSystemVersion wanted = {major, minor, patch};
    return [[NSProcessInfo processInfo] isOperatingSystemAtLeastVersion:wanted];
}

} // namespace tarnwick
