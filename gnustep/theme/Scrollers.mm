// Wrong: the scrollers, as of GNUstep GUI 0.29, whose knob can hardly be taken hold of beside a long list,
// whose ground is that of a text wherever they stand, and which reach over the line below a table's header.

#import "gnustep/runtime/MethodReplacement.h"

#import <AppKit/AppKit.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr CGFloat shortestKnob = 36;

using Part = NSRect (*)(NSScroller *self, SEL command, NSScrollerPart part);
Part nativePart = nullptr;

/// The knob's share of its way is that of the value, however long it is. `start` and `length` are the knob's,
/// `slotStart` and `slotLength` those of what it moves in.
void lengthen(CGFloat &start, CGFloat &length, CGFloat slotStart, CGFloat slotLength, double value) {
    const CGFloat wanted = std::min(shortestKnob, slotLength);
    if (length > 0 && length < wanted) {
        length = wanted;
        start = slotStart + std::floor(value * (slotLength - wanted));
    }
}

NSRect part(NSScroller *self, SEL command, NSScrollerPart part) {
    NSRect rect = nativePart(self, command, part);
    if (part == NSScrollerKnob) {
        const NSRect slot = nativePart(self, command, NSScrollerKnobSlot);
        if (NSWidth([self frame]) > NSHeight([self frame])) {
            lengthen(rect.origin.x, rect.size.width, NSMinX(slot), NSWidth(slot), [self doubleValue]);
        } else {
            lengthen(rect.origin.y, rect.size.height, NSMinY(slot), NSHeight(slot), [self doubleValue]);
        }
    }
    return rect;
}

void drawKnobSlot(NSScroller *self, SEL, NSRect rect, BOOL) {
    NSView *view = [self superview];
    const bool hasGround =
        [view isKindOfClass:[NSScrollView class]] && [static_cast<NSScrollView *>(view) drawsBackground];
    [hasGround ? [NSColor scrollBarColor] : [[self window] backgroundColor] set];
    NSRectFill(rect);
}

using Tile = void (*)(NSScrollView *self, SEL command);
Tile nativeTile = nullptr;

void tile(NSScrollView *self, SEL command) {
    nativeTile(self, command);
    NSScroller *scroller = [self hasVerticalScroller] ? [self verticalScroller] : nil;
    NSRect frame = [scroller frame];
    const CGFloat over = NSMinY([[self contentView] frame]) - NSMinY(frame);
    if (scroller && over > 0) {
        frame.origin.y += over;
        frame.size.height -= over;
        [scroller setFrame:frame];
    }
}

} // namespace

@interface NSScroller (TNKnob)
@end

@implementation NSScroller (TNKnob)

+ (void)load {
    nativePart = TNReplaceMethod(self, @selector(rectForPart:), part);
    TNReplaceMethod(self, @selector(drawKnobSlotInRect:highlight:), drawKnobSlot);
}

@end

@interface NSScrollView (TNScrollers)
@end

@implementation NSScrollView (TNScrollers)

+ (void)load {
    nativeTile = TNReplaceMethod(self, @selector(tile), tile);
}

@end
