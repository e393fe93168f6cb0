#pragma once

#import <Declaring.h>
#import <Foundation/Foundation.h>

@interface FIFinderSyncController : NSObject
@property (class, readonly, getter=isExtensionEnabled) BOOL extensionEnabled TN_SINCE(10.14);
+ (void)showExtensionManagementInterface TN_SINCE(10.14);
@end
