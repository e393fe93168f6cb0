#pragma once

#import <AppKit/AppKit.h>

#include "app/ApplicationDelegate.h"

#include <memory>

/// The application delegate as AppKit sees it; forwards to the C++ delegate.
@interface AppDelegate : NSObject <NSApplicationDelegate> {
@private
    NSWindow *_window;
    std::unique_ptr<tarnwick::WindowControl> _windowControl;
    std::unique_ptr<tarnwick::ApplicationDelegate> _delegate;
}

/// The window is held weakly: its owner keeps it alive.
- (instancetype)initWithPlatform:(const tarnwick::Platform &)platform window:(NSWindow *)window;

- (NSWindow *)window;
- (void)handleInputSourceChange:(NSNotification *)notification;
- (void)darkModeChanged:(NSNotification *)notification;

@end
