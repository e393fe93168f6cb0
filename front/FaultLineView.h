#pragma once

#import <AppKit/AppKit.h>

@class WarningTextField;

/// The line below a table that says how many of its rules something is wrong with. It takes its room from the
/// table while it has something to say.
@interface FaultLineView : NSView {
@private
    WarningTextField *_text;
    NSScrollView *_list;
}

/// Takes its place at the foot of the list, with its buttons, from the right, behind the text. The list is
/// not retained.
- (instancetype)initAtFootOf:(NSScrollView *)list buttons:(NSArray *)buttons;

/// Shows the text; hidden while that is empty. Whether that hid or showed the line.
- (BOOL)showText:(NSString *)text;

@end
