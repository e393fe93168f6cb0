#include "Recording.h"

using namespace tarnwick::standins;

@implementation FIFinderSyncController

+ (BOOL)isExtensionEnabled {
    record(@"isExtensionEnabled");
    return answers().extensionEnabled;
}

+ (void)showExtensionManagementInterface {
    record(@"showExtensionManagementInterface");
}

@end
