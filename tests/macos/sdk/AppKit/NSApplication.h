#pragma once

#import <AppKit/NSResponder.h>

#pragma clang assume_nonnull begin

@class NSMenu;

typedef TN_ENUM(NSInteger, NSUserInterfaceLayoutDirection){
    NSUserInterfaceLayoutDirectionRightToLeft = 1,
};

extern "C" NSString *const NSApplicationDidBecomeActiveNotification;
extern "C" NSString *const NSApplicationWillTerminateNotification;
extern "C" NSString *const NSEventTrackingRunLoopMode;
extern "C" NSString *const NSModalPanelRunLoopMode;

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationWillFinishLaunching:(NSNotification *)notification;
- (void)applicationDidFinishLaunching:(NSNotification *)notification;
- (void)applicationWillTerminate:(NSNotification *)notification;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication *)sender;
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication *)application TN_SINCE(12.0);
- (BOOL)application:(NSApplication *)sender openFile:(NSString *)filename;
@end

@interface NSApplication : NSResponder
@property (class, readonly, strong) NSApplication *sharedApplication;
@property (nullable, assign) id<NSApplicationDelegate> delegate;
@property (nullable, strong) NSMenu *mainMenu;
@property (nullable, strong) NSMenu *windowsMenu;
@property (nullable, strong) NSMenu *helpMenu;
@property (nullable, strong) NSMenu *servicesMenu;
@property (readonly) NSUserInterfaceLayoutDirection userInterfaceLayoutDirection;
- (void)activateIgnoringOtherApps:(BOOL)ignoring;
- (BOOL)sendAction:(SEL)action to:(nullable id)target from:(nullable id)sender;
- (void)terminate:(nullable id)sender;
- (void)hide:(nullable id)sender;
- (void)hideOtherApplications:(nullable id)sender;
- (void)unhideAllApplications:(nullable id)sender;
- (void)arrangeInFront:(nullable id)sender;
- (void)orderFrontStandardAboutPanel:(nullable id)sender;
@end

extern "C" NSApplication *NSApp;
extern "C" int NSApplicationMain(int argc, const char *_Nonnull argv[_Nonnull]);

#pragma clang assume_nonnull end
