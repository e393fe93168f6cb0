#pragma once

#import <AppKit/AppKit.h>

/// A push button on the ground of text, lightest or darkest, whatever that of other buttons is: its red title
/// can be read on no ground between. It draws this ground itself, so it is to have no border.
@interface HelpButton : NSButton
@end
