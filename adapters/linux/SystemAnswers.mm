#import "adapters/foundation/StringConversion.h"
#import "adapters/linux/StandIns.h"

#include "adapters/foundation/SystemAdapters.h"

namespace tarnwick {

// Unless a test says otherwise:

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

/// There is no Finder here whose extension could be switched off.
bool isExtensionEnabled() {
    return ![standInAnswer(@"extensionIsOff") boolValue];
}

void showExtensionManagementInterface() {
    NSLog(@"no Finder extensions on this system: there is no management screen");
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
