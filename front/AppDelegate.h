#pragma once

#import <AppKit/AppKit.h>

namespace tarnwick {
class ApplicationDelegate;
} // namespace tarnwick

/// The application delegate as AppKit sees it, whose names are fixed; hands everything to the core's.
@interface AppDelegate : NSObject <NSApplicationDelegate> {
@private
    NSWindow *_window;
    tarnwick::ApplicationDelegate *_delegate;
}

/// Both outlive the receiver.
- (instancetype)initWithDelegate:(tarnwick::ApplicationDelegate &)delegate window:(NSWindow *)window;

/// The main window, held weakly: its owner keeps it alive.
@property (nonatomic, assign) NSWindow *window;

- (void)handleInputSourceChange:(NSNotification *)notification;
- (void)darkModeChanged:(NSNotification *)notification;

@end
