// Part of TNMenuTracking.mm, where GNUstep GUI 0.29 falls short: the look of an open menu. GNUstep's menus
// are as high as their items need, also beyond the screen, and a marked item that is disabled cannot be read.

#import "gnustep/menus/TNMenuWindow.h"

#import "TNConstants.h"
#import "TNTheme.h"
#import "gnustep/menus/KeyLabels.h"

#include <algorithm>
#include <memory>

namespace {

constexpr CGFloat scrollBarHeight = 18;
constexpr CGFloat arrowSize = 10;

void drawText(NSString *text, CGFloat left, NSRect row, NSColor *color) {
    NSDictionary *attributes = TNMenuRows::attributes(color);
    const NSSize size = [text sizeWithAttributes:attributes];
    [text drawAtPoint:NSMakePoint(left, NSMidY(row) - size.height / 2) withAttributes:attributes];
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

/// A corner that points to the right, up or down.
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

/// The rows, as far as they can be seen.
@interface TNMenuView : NSView {
@public
    NSMenu *menu;
    std::unique_ptr<TNMenuRows> rows;
    NSInteger highlighted;
    CGFloat offset;
}
- (CGFloat)hiddenHeight;
- (BOOL)scrolls;
- (NSRect)visibleRows;
- (void)scrollTo:(CGFloat)wanted;
- (NSRect)placeOfRow:(NSInteger)row;
@end

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

/// What the arrows above and below leave.
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
    drawMark([item state], NSMakePoint(TNMenuRows::sideMargin + arrowSize / 2, NSMidY(row)), color);
    if ([item image]) {
        constexpr CGFloat size = TNMenuRows::imageSize;
        drawImage([item image], NSMakeRect(rows->imageLeft(), NSMidY(row) - size / 2, size, size));
    }
    drawText([item title], rows -> titleLeft(), row, color);
    const CGFloat right = NSMaxX(row) - TNMenuRows::sideMargin - TNMenuRows::padding;
    if ([item hasSubmenu]) {
        drawArrow(NSMakePoint(right - arrowSize / 2, NSMidY(row)), 1, 0, color);
    } else {
        NSString *keys = TNKeyLabel(item);
        const CGFloat width = [keys sizeWithAttributes:TNMenuRows::attributes(color)].width;
        drawText(keys, right - width, row, isHighlighted ? color : colors->secondaryText);
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

@implementation TNMenuWindow

- (instancetype)initWithMenu:(NSMenu *)menu {
    self = [super initWithContentRect:NSMakeRect(0, 0, 100, 100)
                            styleMask:NSWindowStyleMaskBorderless
                              backing:NSBackingStoreBuffered
                                defer:YES];
    if (self) {
        _shownMenu = [menu retain];
        _view = [[[TNMenuView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
        _view->menu = menu;
        _view->rows = std::make_unique<TNMenuRows>(menu);
        _view->highlighted = -1;
        [self setContentView:_view];
        [self setReleasedWhenClosed:NO];
        [self setLevel:NSPopUpMenuWindowLevel];
        [self setExcludedFromWindowsMenu:YES];
    }
    return self;
}

- (void)dealloc {
    [_shownMenu release];
    [super dealloc];
}

- (BOOL)canBecomeKeyWindow {
    return NO;
}

- (NSMenu *)shownMenu {
    return _shownMenu;
}

- (const TNMenuRows &)rows {
    return *_view->rows;
}

- (NSRect)availableAt:(NSPoint)point {
    for (NSScreen *screen in [NSScreen screens]) {
        if (NSMouseInRect(point, [screen frame], NO)) {
            return [screen visibleFrame];
        }
    }
    return [[NSScreen mainScreen] visibleFrame];
}

- (void)showAt:(NSPoint)upperLeft {
    const NSRect available = [self availableAt:upperLeft];
    const NSSize wanted = [self rows].size();
    const NSSize size =
        NSMakeSize(std::min(wanted.width, NSWidth(available)), std::min(wanted.height, NSHeight(available)));
    const CGFloat left = std::clamp(
        upperLeft.x, NSMinX(available), std::max(NSMinX(available), NSMaxX(available) - size.width));
    const CGFloat bottom = std::clamp(upperLeft.y - size.height, NSMinY(available),
        std::max(NSMinY(available), NSMaxY(available) - size.height));
    [self setFrame:NSMakeRect(left, bottom, size.width, size.height) display:NO];
    [self orderFrontRegardless];
    [self display];
}

- (void)showBesideRow:(NSInteger)row of:(TNMenuWindow *)parent {
    constexpr CGFloat overlap = 3;
    const NSRect item = [parent screenRectOfRow:row];
    const CGFloat top = NSMaxY(item) + TNMenuRows::padding;
    const CGFloat right = NSMaxX([parent frame]) - overlap;
    const NSRect available = [self availableAt:[parent frame].origin];
    const CGFloat width = [self rows].size().width;
    const bool fitsRight = right + width <= NSMaxX(available);
    [self showAt:NSMakePoint(fitsRight ? right : NSMinX([parent frame]) - width + overlap, top)];
}

- (void)scrollRow:(NSInteger)row toScreenY:(CGFloat)y {
    const CGFloat fromTop = NSMaxY([self frame]) - y;
    [_view scrollTo:NSMinY([self rows].rectOf(row)) + NSMinY([_view visibleRows]) - fromTop];
    [self display];
}

/// In the view, which counts from above.
- (NSPoint)placeOf:(NSPoint)screenPoint {
    return NSMakePoint(screenPoint.x - NSMinX([self frame]), NSMaxY([self frame]) - screenPoint.y);
}

- (BOOL)containsScreenPoint:(NSPoint)point {
    return NSMouseInRect(point, [self frame], NO);
}

- (int)scrollDirectionAtScreenPoint:(NSPoint)point {
    if (![_view scrolls] || ![self containsScreenPoint:point]) {
        return 0;
    }
    const NSPoint place = [self placeOf:point];
    if (place.y < scrollBarHeight) {
        return _view->offset > 0 ? -1 : 0;
    }
    return place.y > NSHeight([_view bounds]) - scrollBarHeight && _view->offset < [_view hiddenHeight] ? 1
                                                                                                        : 0;
}

- (NSInteger)rowAtScreenPoint:(NSPoint)point {
    const NSPoint place = [self placeOf:point];
    const NSRect visible = [_view visibleRows];
    if (![self containsScreenPoint:point] || !NSMouseInRect(place, visible, YES)) {
        return -1;
    }
    return [self rows].rowAt(place.y - NSMinY(visible) + _view->offset);
}

- (NSRect)screenRectOfRow:(NSInteger)row {
    const NSRect place = [_view placeOfRow:row];
    return NSMakeRect(
        NSMinX([self frame]), NSMaxY([self frame]) - NSMaxY(place), NSWidth([self frame]), NSHeight(place));
}

- (NSInteger)highlightedRow {
    return _view->highlighted;
}

- (void)highlightRow:(NSInteger)row {
    if (row == _view->highlighted) {
        return;
    }
    _view->highlighted = row;
    if (row >= 0) {
        const NSRect place = [_view placeOfRow:row];
        const NSRect visible = [_view visibleRows];
        if (NSMinY(place) < NSMinY(visible)) {
            [_view scrollTo:_view->offset - (NSMinY(visible) - NSMinY(place))];
        } else if (NSMaxY(place) > NSMaxY(visible)) {
            [_view scrollTo:_view->offset + NSMaxY(place) - NSMaxY(visible)];
        }
    }
    [self display];
}

- (void)scrollBy:(CGFloat)distance {
    [_view scrollTo:_view->offset + distance];
    [self display];
}

@end
