#pragma once

#import <AppKit/AppKit.h>

/// The tool tip of an item of an open menu.
@interface TNMenuTip : NSPanel
/// Below and right of the pointer; autoreleased.
+ (TNMenuTip *)showText:(NSString *)text at:(NSPoint)pointer;
@end
