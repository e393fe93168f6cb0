#pragma once

#import <AppKit/AppKit.h>

/// The application object. Made first, as `[TNApplication sharedApplication]`, it takes the place of the
/// plain one.
@interface TNApplication : NSApplication
@end
