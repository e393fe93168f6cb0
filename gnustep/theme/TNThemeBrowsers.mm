// Wrong: the columns of a browser, as of GNUstep GUI 0.29: a frame around a horizontal scroller that is not
// there while nothing can be scrolled, a header in relief, and rows that are always read from left to right.

#import "TNTheme.h"

#import "gnustep/start/LayoutDirection.h"

namespace {

constexpr CGFloat leadingMargin = 2;
constexpr CGFloat imageGap = 4;
constexpr CGFloat arrowMargin = 4;

/// In the middle of the room's height, that far from where reading begins.
NSRect placeOf(NSImage *image, CGFloat distance, NSRect room) {
    const NSSize size = [image size];
    const NSRect place =
        NSMakeRect(NSMinX(room) + distance, NSMidY(room) - size.height / 2, size.width, size.height);
    return TNPlaceByDirection(place, room);
}

void drawImage(NSImage *image, NSRect place, NSView *view) {
    [image drawInRect:[view centerScanRect:place]
              fromRect:NSZeroRect
             operation:NSCompositeSourceOver
              fraction:1
        respectFlipped:YES
                 hints:nil];
}

NSAttributedString *alignedTitle(NSCell *cell) {
    NSMutableAttributedString *title = [[[cell attributedStringValue] mutableCopy] autorelease];
    [title setAlignment:TNLeadingAlignment() range:NSMakeRange(0, [title length])];
    return title;
}

} // namespace

@implementation TNTheme (Browsers)

- (void)drawBrowserHeaderCell:(NSTableHeaderCell *)cell withFrame:(NSRect)frame inView:(NSView *)view {
    [TNThemeCurrentColors()->header set];
    NSRectFill(frame);
}

- (void)drawBrowserRect:(NSRect)rect
                 inView:(NSView *)view
       withScrollerRect:(NSRect)scrollerRect
             columnSize:(NSSize)columnSize {
    NSBrowser *browser = (NSBrowser *)view;
    if (![browser isLoaded]) {
        [browser loadColumnZero];
    }
    for (NSInteger column = [browser firstVisibleColumn]; column <= [browser lastVisibleColumn]; ++column) {
        [browser drawTitleOfColumn:column inRect:[browser titleFrameOfColumn:column]];
    }
}

/// An image, the title after it, and at the end an arrow when there is something inside.
- (void)drawBrowserInteriorWithFrame:(NSRect)frame
                            withCell:(NSBrowserCell *)cell
                              inView:(NSView *)view
                           withImage:(NSImage *)image
                      alternateImage:(NSImage *)alternateImage
                       isHighlighted:(BOOL)isHighlighted
                               state:(int)state
                              isLeaf:(BOOL)isLeaf {
    const bool isChosen = isHighlighted || state != NSOffState;
    if (isChosen) {
        [[cell highlightColorInView:view] setFill];
        NSRectFill(frame);
    }
    CGFloat begin = leadingMargin;
    CGFloat end = NSWidth(frame);
    if (!isLeaf) {
        NSImage *arrow = isChosen ? [self highlightedBranchImage] : [self branchImage];
        const CGFloat width = [arrow size].width;
        drawImage(arrow, placeOf(arrow, end - arrowMargin - width, frame), view);
        end -= width + 2 * arrowMargin;
    }
    if (NSImage *shown = isChosen && alternateImage ? alternateImage : image) {
        drawImage(shown, placeOf(shown, begin, frame), view);
        begin += [shown size].width + imageGap;
    }
    const NSRect title = NSMakeRect(NSMinX(frame) + begin, NSMinY(frame), end - begin, NSHeight(frame));
    [self drawInCell:cell attributedText:alignedTitle(cell) inFrame:TNPlaceByDirection(title, frame)];
}

@end
