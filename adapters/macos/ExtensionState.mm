#include "adapters/foundation/SystemAdapters.h"

#import <FinderSync/FinderSync.h>

namespace tarnwick {

// Before 10.14 the system can say nothing about its extensions; they count as enabled.

bool isExtensionEnabled() {
    if (@available(macOS 10.14, *)) {
        return [FIFinderSyncController isExtensionEnabled];
    }
    return true;
}

void showExtensionManagementInterface() {
    if (@available(macOS 10.14, *)) {
        [FIFinderSyncController showExtensionManagementInterface];
    }
}

} // namespace tarnwick
