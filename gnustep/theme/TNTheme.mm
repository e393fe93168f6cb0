// Wrong: the look of controls, which in GNUstep GUI 0.29 is that of another age. This theme is flat and
// light, with thin lines and round corners. Tables draw their rows themselves, in the same colours.

#import "TNTheme.h"

#include <algorithm>

namespace {

constexpr CGFloat boxRadius = 8;
constexpr CGFloat knobInset = 3;
constexpr float scrollerWidth = 13;
/// Buttons up to this size are those of a title bar.
constexpr CGFloat titleBarButtonSize = 16;

bool isDefaultButton(NSCell *cell) {
    return [cell isKindOfClass:[NSButtonCell class]] &&
           [[(NSButtonCell *)cell keyEquivalent] isEqualToString:@"\r"];
}

bool isPressed(GSThemeControlState state) {
    return state == GSThemeHighlightedState || state == GSThemeHighlightedFirstResponderState ||
           state == GSThemeSelectedState || state == GSThemeSelectedFirstResponderState;
}

} // namespace

NSBezierPath *TNThemeHairline(NSRect rect, CGFloat radius) {
    NSBezierPath *path = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect(rect, 0.5, 0.5)
                                                         xRadius:radius
                                                         yRadius:radius];
    [path setLineWidth:1];
    return path;
}

@implementation TNTheme

/// The name under which GNUstep would look for a theme: another one would be loaded in this one's place as
/// soon as any default changes.
- (NSString *)name {
    NSString *name = [[NSUserDefaults standardUserDefaults] stringForKey:@"GSTheme"];
    return [name length] > 0 ? name : @"GNUstep";
}

- (NSColorList *)colors {
    return TNThemeMakeColorList();
}

#pragma mark Buttons

- (void)drawButton:(NSRect)frame
                in:(NSCell *)cell
              view:(NSView *)view
             style:(int)style
             state:(GSThemeControlState)state {
    if (std::max(NSWidth(frame), NSHeight(frame)) <= titleBarButtonSize) {
        return;
    }
    const auto *colors = TNThemeCurrentColors();
    NSBezierPath *path = TNThemeHairline(NSInsetRect(frame, 0, 1), TNThemeButtonRadius);
    if (![cell isEnabled]) {
        [colors->controlDisabled set];
        [path fill];
        [colors->border set];
        [path stroke];
        return;
    }
    if (isDefaultButton(cell)) {
        [(isPressed(state) ? [colors->accentFill shadowWithLevel:0.15] : colors->accentFill) set];
        [path fill];
        return;
    }
    [(isPressed(state) ? colors->controlPressed : colors->control) set];
    [path fill];
    [colors->controlBorder set];
    [path stroke];
}

- (GSThemeMargins)buttonMarginsForCell:(NSCell *)cell style:(int)style state:(GSThemeControlState)state {
    return {.left = 10, .right = 10, .top = 3, .bottom = 3};
}

/// The default button is filled instead of bearing an arrow.
- (void)setKeyEquivalent:(NSString *)key forButtonCell:(NSButtonCell *)cell {
}

/// Of a cell among several; that of a whole control is drawn around it, see FocusRing.mm.
- (void)drawFocusFrame:(NSRect)frame view:(NSView *)view {
    if (![view isKindOfClass:[NSMatrix class]]) {
        return;
    }
    [TNThemeCurrentColors()->accent set];
    NSBezierPath *path = TNThemeHairline(NSInsetRect(frame, 0.5, 0.5), TNThemeButtonRadius);
    [path setLineWidth:2];
    [path stroke];
}

#pragma mark Borders and backgrounds

- (void)drawBorderType:(NSBorderType)type frame:(NSRect)frame view:(NSView *)view {
    if (type != NSNoBorder) {
        [TNThemeCurrentColors()->controlBorder set];
        [TNThemeHairline(frame, 0) stroke];
    }
}

- (NSSize)sizeForBorderType:(NSBorderType)type {
    return type == NSNoBorder ? NSZeroSize : NSMakeSize(1, 1);
}

- (void)drawBoxInClipRect:(NSRect)clip
                  boxType:(NSBoxType)boxType
               borderType:(NSBorderType)borderType
                   inView:(NSBox *)box {
    const auto *colors = TNThemeCurrentColors();
    if (boxType == NSBoxSeparator) {
        [colors->border set];
        NSRectFill([box bounds]);
        return;
    }
    NSBezierPath *path = TNThemeHairline([box bounds], boxRadius);
    [colors->surface set];
    [path fill];
    [colors->border set];
    [path stroke];
}

- (void)drawWindowBackground:(NSRect)frame view:(NSView *)view {
    [[[view window] backgroundColor] set];
    NSRectFill(frame);
}

- (NSRect)drawWhiteBezel:(NSRect)border withClip:(NSRect)clip {
    [TNThemeCurrentColors()->surface set];
    NSRectFill(NSIntersectionRect(border, clip));
    [TNThemeCurrentColors()->controlBorder set];
    [TNThemeHairline(border, 0) stroke];
    return NSInsetRect(border, 2, 2);
}

- (NSRect)drawGrayBezel:(NSRect)border withClip:(NSRect)clip {
    return [self drawWhiteBezel:border withClip:clip];
}

- (NSRect)drawGroove:(NSRect)border withClip:(NSRect)clip {
    [TNThemeCurrentColors()->border set];
    [TNThemeHairline(border, 0) stroke];
    return NSInsetRect(border, 2, 2);
}

#pragma mark Scrolling

- (void)drawScrollViewRect:(NSRect)rect inView:(NSView *)view {
    NSScrollView *scrollView = (NSScrollView *)view;
    [self drawBorderType:[scrollView borderType] frame:[view bounds] view:view];
}

- (float)defaultScrollerWidth {
    return scrollerWidth;
}

- (BOOL)scrollerArrowsSameEndForScroller:(NSScroller *)scroller {
    return YES;
}

- (void)drawScrollerRect:(NSRect)rect
                  inView:(NSView *)view
                 hitPart:(NSScrollerPart)hitPart
            isHorizontal:(BOOL)isHorizontal {
    NSScroller *scroller = (NSScroller *)view;
    if ([scroller arrowsPosition] != NSScrollerArrowsNone) {
        [scroller setArrowsPosition:NSScrollerArrowsNone];
    }
    [scroller drawKnobSlotInRect:rect highlight:NO];
    const NSRect knob = NSInsetRect([scroller rectForPart:NSScrollerKnob], knobInset, knobInset);
    const CGFloat radius = std::min(NSWidth(knob), NSHeight(knob)) / 2;
    [TNThemeCurrentColors()->knob set];
    [[NSBezierPath bezierPathWithRoundedRect:knob xRadius:radius yRadius:radius] fill];
}

#pragma mark Table headers

- (NSColor *)tableHeaderTextColorForState:(GSThemeControlState)state {
    return TNThemeCurrentColors()->secondaryText;
}

- (void)fillHeader:(NSRect)rect {
    [TNThemeCurrentColors()->header set];
    NSRectFill(rect);
    [TNThemeCurrentColors()->border set];
    NSRectFill(NSMakeRect(NSMinX(rect), NSMaxY(rect) - 1, NSWidth(rect), 1));
}

- (void)drawTableHeaderCell:(NSTableHeaderCell *)cell
                  withFrame:(NSRect)frame
                     inView:(NSView *)view
                      state:(GSThemeControlState)state {
    [self fillHeader:frame];
}

- (void)drawTableHeaderRect:(NSRect)rect inView:(NSView *)view {
    NSTableHeaderView *header = (NSTableHeaderView *)view;
    TNTableView *table = (TNTableView *)[header tableView];
    [self fillHeader:[header bounds]];
    for (NSInteger column = 0; column < [table numberOfColumns]; ++column) {
        NSTableColumn *tableColumn = [[table tableColumns] objectAtIndex:static_cast<NSUInteger>(column)];
        NSCell *cell = [tableColumn headerCell];
        [cell setFont:[NSFont systemFontOfSize:11]];
        const NSRect frame = [header headerRectOfColumn:column];
        NSDictionary *attributes =
            [NSDictionary dictionaryWithObjectsAndKeys:[cell font], NSFontAttributeName,
                          TNThemeCurrentColors() -> secondaryText, NSForegroundColorAttributeName, nil];
        NSString *title = [cell stringValue];
        const NSSize size = [title sizeWithAttributes:attributes];
        CGFloat left = NSMinX(frame);
        if ([cell alignment] == NSCenterTextAlignment) {
            left = NSMidX(frame) - size.width / 2;
        } else if ([cell alignment] == NSRightTextAlignment) {
            left = NSMaxX(frame) - size.width;
        }
        [title drawAtPoint:NSMakePoint(left, NSMidY(frame) - size.height / 2) withAttributes:attributes];
    }
}

- (void)drawTableCornerView:(NSView *)view withClip:(NSRect)rect {
    [self fillHeader:[view bounds]];
}

#pragma mark Menus

- (BOOL)menuShouldShowIcon {
    return NO;
}

- (NSColor *)menuBackgroundColor {
    return TNThemeCurrentColors()->surface;
}

- (NSColor *)menuItemBackgroundColor {
    return TNThemeCurrentColors()->surface;
}

- (NSColor *)menuBorderColor {
    return TNThemeCurrentColors()->border;
}

- (NSColor *)menuSeparatorColor {
    return TNThemeCurrentColors()->border;
}

- (CGFloat)menuSeparatorInset {
    return 0;
}

- (CGFloat)menuItemHeight {
    return 24;
}

- (CGFloat)menuBarHeight {
    return 26;
}

@end

/// Titles of default buttons are white; of others that cannot be pressed, grey.
@interface NSButtonCell (TNTheme)
@end

@implementation NSButtonCell (TNTheme)

- (NSColor *)textColor {
    const auto *colors = TNThemeCurrentColors();
    if (![self isEnabled]) {
        return colors->disabledText;
    }
    return [self isBordered] && isDefaultButton(self) ? colors->accentText : colors->text;
}

@end
