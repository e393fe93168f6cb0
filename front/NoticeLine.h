#pragma once

#import <AppKit/AppKit.h>

#include "ui/Notices.h"

/// A notice, with its next step and a button that puts it away.
@interface NoticeLine : NSView {
@private
    NSTextField *_text;
    NSMutableArray *_buttons;
}

- (instancetype)initWithNotice:(const tarnwick::Notice &)notice controller:(id)controller;
/// Puts its parts in their places for that width, and is as high as the text then needs.
- (void)layOutForWidth:(CGFloat)width;

@end

/// Belongs to a notice.
@interface NoticeButton : NSButton {
@private
    tarnwick::Notice _notice;
}

- (const tarnwick::Notice &)notice;

@end
