#import "front/CellContainerView.h"

#import "front/LayoutDirection.h"

#include <algorithm>

@implementation CellContainerView

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
    const CGFloat width = NSWidth([self bounds]);
    const bool isMirrored = tarnwick::isRightToLeft();
    for (NSView *view in [self subviews]) {
        NSRect frame = [view frame];
        const CGFloat inset = isMirrored ? oldSize.width - NSMaxX(frame) : NSMinX(frame);
        if ([view isKindOfClass:[NSTextField class]]) {
            frame.size.width = std::max(0.0, width - inset);
        }
        if (isMirrored) {
            frame.origin.x = width - inset - NSWidth(frame);
        }
        [view setFrame:frame];
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
