#pragma once

#import <AppKit/AppKit.h>

/// The application object. Made first, as `[TNApplication sharedApplication]`, it takes the place of the
/// plain one.
@interface TNApplication : NSApplication {
@private
    /// When the keyboard was last asked for, in seconds.
    NSTimeInterval _keyboardAskedFor;
}
@end
