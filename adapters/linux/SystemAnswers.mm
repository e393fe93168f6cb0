#import "adapters/foundation/StringConversion.h"
#import "adapters/linux/StandIns.h"

#include "adapters/foundation/SystemAdapters.h"

namespace tarnwick {

/// Linux keeps no register of applications by bundle identifier.
RegisteredApplications registeredApplications(std::string_view) {
    RegisteredApplications applications;
    for (NSString *path in standInAnswer(@"copies")) {
        applications.paths.push_back(toString(path));
    }
    return applications;
}

bool carriesExtension() {
    return ![standInAnswer(@"carriesNoExtension") boolValue];
}

/// Nobody administers settings here.
bool isForced(std::string_view key) {
    return [standInAnswer(@"forced") containsObject:toNSString(key)];
}

/// Linux takes the branches of the newest system.
bool isSystemAtLeast(int, int, int) {
    return true;
}

} // namespace tarnwick
