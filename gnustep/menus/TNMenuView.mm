// Part of TNMenuTracking.mm, where GNUstep GUI 0.29 falls short: the look of an open menu. A marked item of
// GNUstep's that is disabled cannot be read.

#import "gnustep/menus/TNMenuView.h"

#import "TNConstants.h"
#import "TNTheme.h"
#import "gnustep/menus/KeyLabels.h"
#import "gnustep/start/LayoutDirection.h"

#include <algorithm>

namespace {

constexpr CGFloat scrollBarHeight = 18;
constexpr CGFloat arrowSize = 10;

/// Of what stands in the middle of a row, so far from the side at which reading begins.
NSRect placeIn(NSRect row, CGFloat leading, NSSize size) {
    return TNPlaceByDirection(
        NSMakeRect(NSMinX(row) + leading, NSMidY(row) - size.height / 2, size.width, size.height), row);
}

NSPoint middleOf(NSRect place) {
    return NSMakePoint(NSMidX(place), NSMidY(place));
}

NSSize sizeOf(NSString *text) {
    return [text sizeWithAttributes:TNMenuRows::attributes(nil)];
}

void drawText(NSString *text, NSRect place, NSColor *color) {
    [text drawAtPoint:place.origin withAttributes:TNMenuRows::attributes(color)];
}

void drawImage(NSImage *image, NSRect place) {
    const NSSize size = [image size];
    const CGFloat scale = std::min(1.0, NSWidth(place) / std::max({size.width, size.height, 1.0}));
    const NSSize drawn = NSMakeSize(size.width * scale, size.height * scale);
    [image drawInRect:NSMakeRect(NSMidX(place) - drawn.width / 2, NSMidY(place) - drawn.height / 2,
                          drawn.width, drawn.height)
              fromRect:NSZeroRect
             operation:NSCompositingOperationSourceOver
              fraction:1
        respectFlipped:YES
                 hints:nil];
}

/// A corner that points to the right, left, up or down.
void drawArrow(NSPoint middle, CGFloat dx, CGFloat dy, NSColor *color) {
    constexpr CGFloat half = 3.5;
    NSBezierPath *path = [NSBezierPath bezierPath];
    [path moveToPoint:NSMakePoint(middle.x - half * (dx + dy) / 2, middle.y - half * (dx + dy) / 2)];
    [path lineToPoint:NSMakePoint(middle.x + half * dx / 2, middle.y + half * dy / 2)];
    [path lineToPoint:NSMakePoint(middle.x - half * (dx - dy) / 2, middle.y + half * (dx - dy) / 2)];
    [path setLineWidth:1.4];
    [color set];
    [path stroke];
}

/// A tick, or a dash for what is partly on.
void drawMark(NSInteger state, NSPoint middle, NSColor *color) {
    NSBezierPath *path = [NSBezierPath bezierPath];
    if (state == NSControlStateValueMixed) {
        [path moveToPoint:NSMakePoint(middle.x - 3.5, middle.y)];
        [path lineToPoint:NSMakePoint(middle.x + 3.5, middle.y)];
    } else if (state == NSControlStateValueOn) {
        [path moveToPoint:NSMakePoint(middle.x - 3.5, middle.y)];
        [path lineToPoint:NSMakePoint(middle.x - 1, middle.y + 3)];
        [path lineToPoint:NSMakePoint(middle.x + 3.5, middle.y - 3.5)];
    }
    [path setLineWidth:1.6];
    [color set];
    [path stroke];
}

} // namespace

@implementation TNMenuView

- (BOOL)isFlipped {
    return YES;
}

- (CGFloat)hiddenHeight {
    return std::max(0.0, rows->size().height - NSHeight([self visibleRows]));
}

- (BOOL)scrolls {
    return rows->size().height > NSHeight([self bounds]);
}

- (NSRect)visibleRows {
    return [self scrolls] ? NSInsetRect([self bounds], 0, scrollBarHeight) : [self bounds];
}

- (void)scrollTo:(CGFloat)wanted {
    offset = std::clamp(wanted, 0.0, [self hiddenHeight]);
    [self setNeedsDisplay:YES];
}

- (NSRect)placeOfRow:(NSInteger)row {
    return NSOffsetRect(rows->rectOf(row), 0, NSMinY([self visibleRows]) - offset);
}

- (int)scrollDirectionAt:(NSPoint)place {
    if (![self scrolls]) {
        return 0;
    }
    if (place.y < scrollBarHeight) {
        return offset > 0 ? -1 : 0;
    }
    return place.y > NSHeight([self bounds]) - scrollBarHeight && offset < [self hiddenHeight] ? 1 : 0;
}

- (void)scrollToRow:(NSInteger)row {
    const NSRect place = [self placeOfRow:row];
    const NSRect visible = [self visibleRows];
    if (NSMinY(place) < NSMinY(visible)) {
        [self scrollTo:offset - (NSMinY(visible) - NSMinY(place))];
    } else if (NSMaxY(place) > NSMaxY(visible)) {
        [self scrollTo:offset + NSMaxY(place) - NSMaxY(visible)];
    }
}

- (void)drawItem:(NSMenuItem *)item inRow:(NSRect)row isHighlighted:(BOOL)isHighlighted {
    const auto *colors = TNThemeCurrentColors();
    if ([item isSeparatorItem]) {
        [colors->border set];
        NSRectFill(
            NSMakeRect(TNMenuRows::sideMargin, NSMidY(row), NSWidth(row) - 2 * TNMenuRows::sideMargin, 1));
        return;
    }
    NSColor *color = [item isEnabled] ? colors->text : colors->disabledText;
    if (isHighlighted) {
        [colors->accentFill set];
        [[NSBezierPath bezierPathWithRoundedRect:NSInsetRect(row, TNMenuRows::padding, 0) xRadius:4
                                         yRadius:4] fill];
        color = colors->accentText;
    }
    constexpr NSSize arrow = {arrowSize, arrowSize};
    drawMark([item state], middleOf(placeIn(row, TNMenuRows::sideMargin, arrow)), color);
    if ([item image]) {
        constexpr NSSize size = {TNMenuRows::imageSize, TNMenuRows::imageSize};
        drawImage([item image], placeIn(row, rows->imageLeading(), size));
    }
    drawText([item title], placeIn(row, rows->titleLeading(), sizeOf([item title])), color);
    const CGFloat end = NSWidth(row) - TNMenuRows::sideMargin - TNMenuRows::padding;
    if ([item hasSubmenu]) {
        const CGFloat onward = TNReadsFromRightToLeft() ? -1 : 1;
        drawArrow(middleOf(placeIn(row, end - arrowSize, arrow)), onward, 0, color);
    } else {
        NSString *keys = TNKeyLabel(item);
        const NSSize size = sizeOf(keys);
        drawText(keys, placeIn(row, end - size.width, size), isHighlighted ? color : colors->secondaryText);
    }
}

- (void)drawScrollArrows {
    const auto *colors = TNThemeCurrentColors();
    const NSRect bounds = [self bounds];
    const auto drawBar = [&](CGFloat top, CGFloat direction, bool isActive) {
        const NSRect bar = NSMakeRect(1, top, NSWidth(bounds) - 2, scrollBarHeight - 1);
        [colors->surface set];
        NSRectFill(bar);
        if (isActive) {
            drawArrow(NSMakePoint(NSMidX(bar), NSMidY(bar)), 0, direction, colors->text);
        }
    };
    drawBar(1, -1, offset > 0);
    drawBar(NSHeight(bounds) - scrollBarHeight, 1, offset < [self hiddenHeight]);
}

- (void)drawRect:(NSRect)rect {
    const auto *colors = TNThemeCurrentColors();
    [colors->surface set];
    NSRectFill([self bounds]);
    const NSRect visible = [self visibleRows];
    const NSInteger first = std::max<NSInteger>(0, rows->rowAt(offset));
    for (NSInteger row = first; row < rows->count(); ++row) {
        const NSRect place = [self placeOfRow:row];
        if (NSMinY(place) >= NSMaxY(visible)) {
            break;
        }
        [self drawItem:[menu itemAtIndex:row] inRow:place isHighlighted:row == highlighted];
    }
    if ([self scrolls]) {
        [self drawScrollArrows];
    }
    [colors->border set];
    NSFrameRect([self bounds]);
}

@end
