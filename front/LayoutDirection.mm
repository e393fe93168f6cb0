#import "front/LayoutDirection.h"

namespace tarnwick {
namespace {

/// A view that keeps its width and has no margin that gives is at the left, as one with such a margin at the
/// right.
NSUInteger mirrored(NSUInteger autoresizing) {
    constexpr NSUInteger sides = NSViewMinXMargin | NSViewMaxXMargin;
    NSUInteger result = autoresizing & ~sides;
    if ((autoresizing & NSViewMinXMargin) != 0) {
        result |= NSViewMaxXMargin;
    }
    if ((autoresizing & NSViewMaxXMargin) != 0 || (autoresizing & (sides | NSViewWidthSizable)) == 0) {
        result |= NSViewMinXMargin;
    }
    return result;
}

void mirrorText(NSTextField *field) {
    if ([field alignment] != NSTextAlignmentCenter) {
        [field setAlignment:NSTextAlignmentRight];
    }
}

void mirror(NSView *view) {
    if ([view isKindOfClass:[NSTextField class]]) {
        mirrorText(static_cast<NSTextField *>(view));
    } else if ([view isKindOfClass:[NSTabView class]]) {
        for (NSTabViewItem *item in [static_cast<NSTabView *>(view) tabViewItems]) {
            mirror([item view]);
        }
    } else if (![view isKindOfClass:[NSControl class]] && ![view isKindOfClass:[NSScrollView class]]) {
        const NSRect room = [view bounds];
        for (NSView *inner in [view subviews]) {
            const NSRect frame = [inner frame];
            [inner setFrameOrigin:NSMakePoint(NSMinX(room) + NSMaxX(room) - NSMaxX(frame), NSMinY(frame))];
            [inner setAutoresizingMask:mirrored([inner autoresizingMask])];
            mirror(inner);
        }
    }
}

} // namespace

bool isRightToLeft() {
    return [NSApp userInterfaceLayoutDirection] == NSUserInterfaceLayoutDirectionRightToLeft;
}

NSTextAlignment leadingAlignment() {
    return isRightToLeft() ? NSTextAlignmentRight : NSTextAlignmentLeft;
}

CGFloat leadingPlace(NSRect room, CGFloat distance) {
    return isRightToLeft() ? NSMaxX(room) - distance : NSMinX(room) + distance;
}

void mirrorIfRightToLeft(NSView *view) {
    if (isRightToLeft()) {
        mirror(view);
    }
}

} // namespace tarnwick
