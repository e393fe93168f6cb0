#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/SystemAdapters.h"

#import <Foundation/Foundation.h>

namespace tarnwick {

bool carriesExtension() {
    NSString *folder = [[NSBundle mainBundle] builtInPlugInsPath];
    if (!folder) {
        return false;
    }
    for (NSString *name in [[NSFileManager defaultManager] contentsOfDirectoryAtPath:folder error:nullptr]) {
        if ([[name pathExtension] isEqualToString:@"appex"]) {
            return true;
        }
    }
    return false;
}

bool isForced(std::string_view key) {
    return [[NSUserDefaults standardUserDefaults] objectIsForcedForKey:toNSString(key)];
}

} // namespace tarnwick
