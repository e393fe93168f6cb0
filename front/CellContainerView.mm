#import "front/CellContainerView.h"

#include <algorithm>

@implementation CellContainerView

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
    for (NSView *view in [self subviews]) {
        if ([view isKindOfClass:[NSTextField class]]) {
            NSRect frame = [view frame];
            frame.size.width = std::max(0.0, NSWidth([self bounds]) - NSMinX(frame));
            [view setFrame:frame];
        }
    }
}

- (void)setBackgroundStyle:(NSBackgroundStyle)style {
    for (NSView *view in [self subviews]) {
        if ([view isKindOfClass:[NSControl class]]) {
            [[static_cast<NSControl *>(view) cell] setBackgroundStyle:style];
        }
    }
}

- (BOOL)mouseDownCanMoveWindow {
    return NO;
}

/// A field that is taken away while it is being edited stores nothing: its row may be another one by now.
- (void)viewWillMoveToWindow:(NSWindow *)window {
    [super viewWillMoveToWindow:window];
    if (window) {
        return;
    }
    for (NSView *view in [self subviews]) {
        if ([view isKindOfClass:[NSTextField class]]) {
            [static_cast<NSTextField *>(view) abortEditing];
        }
    }
}

@end
