#pragma once

#import <AppKit/NSDrawing.h>

#pragma clang assume_nonnull begin

extern "C" NSString *const NSWorkspaceDidActivateApplicationNotification;
extern "C" NSString *const NSWorkspaceDidDeactivateApplicationNotification;

@interface NSWorkspace : NSObject
- (BOOL)selectFile:(nullable NSString *)fullPath inFileViewerRootedAtPath:(NSString *)rootFullPath;
@property (class, readonly, strong) NSWorkspace *sharedWorkspace;
@property (readonly, strong) NSNotificationCenter *notificationCenter;
- (BOOL)isFilePackageAtPath:(NSString *)path;
- (BOOL)openURL:(NSURL *)url;
- (BOOL)openFile:(NSString *)path TN_DEPRECATED(10.0, 11.0);
- (BOOL)selectFile:(nullable NSString *)path inFileViewerRootedAtPath:(NSString *)rootPath;
- (NSImage *)iconForFile:(NSString *)path;
- (BOOL)launchApplication:(NSString *)name TN_DEPRECATED(10.0, 10.15);
- (nullable NSString *)absolutePathForAppBundleWithIdentifier:(NSString *)identifier
    TN_DEPRECATED(10.0, 10.15);
@end

@interface NSRunningApplication : NSObject
+ (NSArray<NSRunningApplication *> *)runningApplicationsWithBundleIdentifier:(NSString *)identifier;
- (BOOL)terminate;
@end

#pragma clang assume_nonnull end
