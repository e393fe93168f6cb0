// Wrong: the places and the mark of a drop on a table, as of GNUstep GUI 0.29. It proposes row -1 below the
// last row, draws its mark under the cells and leaves it behind; here the mark is a view above them, and
// drops are proposed as AppKit does: the outer quarters of a row are the gaps, its middle the row itself,
// everything below the last row the last gap.

#import "TNTableView.h"

#import "TNTheme.h"
#import "gnustep/start/LayoutDirection.h"

#include <algorithm>
#include <array>

namespace {

constexpr CGFloat lineHeight = 2;
constexpr CGFloat scrollMargin = 16;
constexpr CGFloat pictureWidth = 260;

/// Leaves what stands on the row's ground, and of the ground every fourth pixel: the picture is a window of
/// its own, which cannot be seen through here, and the line in a gap is not to be hidden by it.
void thinOut(NSBitmapImageRep *pixels) {
    constexpr std::size_t samples = 4;
    if (static_cast<std::size_t>([pixels samplesPerPixel]) != samples || [pixels bitsPerSample] != 8) {
        return;
    }
    std::array<unsigned char, samples> ground{};
    std::copy_n([pixels bitmapData], samples, ground.begin());
    for (NSInteger y = 0; y < [pixels pixelsHigh]; ++y) {
        unsigned char *pixel = [pixels bitmapData] + y * [pixels bytesPerRow];
        for (NSInteger x = 0; x < [pixels pixelsWide]; ++x, pixel += samples) {
            const bool isKept = x % 2 == 0 && y % 2 == 0;
            if (!isKept && std::equal(ground.begin(), ground.end(), pixel)) {
                std::fill_n(pixel, samples, static_cast<unsigned char>(0));
            }
        }
    }
}

} // namespace

/// Where a drop would go: a line in a gap, or a frame around a row.
@interface TNDropMark : NSView
@end

@implementation TNDropMark

- (void)drawRect:(NSRect)rect {
    [TNThemeCurrentColors()->accent set];
    if (NSHeight([self bounds]) > lineHeight) {
        NSFrameRectWithWidth([self bounds], lineHeight);
    } else {
        NSRectFill([self bounds]);
    }
}

- (NSView *)hitTest:(NSPoint)point {
    return nil;
}

@end

@implementation TNTableView (Dragging)

- (void)dragRowsFromEvent:(NSEvent *)event {
    NSIndexSet *rows = [self selectedRowIndexes];
    NSPasteboard *pasteboard = [NSPasteboard pasteboardWithName:NSDragPboard];
    id source = [self dataSource];
    if ([rows count] == 0 ||
        ![source respondsToSelector:@selector(tableView:writeRowsWithIndexes:toPasteboard:)] ||
        ![source tableView:self writeRowsWithIndexes:rows toPasteboard:pasteboard]) {
        return;
    }
    const NSRect row = [self rectOfRow:static_cast<NSInteger>([rows firstIndex])];
    NSRect frame = row;
    frame.size.width = std::min(NSWidth(row), pictureWidth);
    if (TNReadsFromRightToLeft()) {
        frame.origin.x = NSMaxX(row) - NSWidth(frame);
    }
    [self dragImage:[self pictureOfRect:NSIntersectionRect(frame, [self visibleRect])]
                 at:NSMakePoint(NSMinX(frame), NSMaxY(frame))
             offset:NSZeroSize
              event:event
         pasteboard:pasteboard
             source:self
          slideBack:NO];
}

/// What can be seen through is left out of the window that shows it.
- (NSImage *)pictureOfRect:(NSRect)rect {
    [self lockFocus];
    NSBitmapImageRep *pixels = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:rect] autorelease];
    [self unlockFocus];
    NSImage *image = [[[NSImage alloc] initWithSize:rect.size] autorelease];
    [image setBackgroundColor:[NSColor clearColor]];
    if (pixels) {
        thinOut(pixels);
        [image addRepresentation:pixels];
    }
    return image;
}

- (void)setDropRow:(NSInteger)row dropOperation:(NSTableViewDropOperation)operation {
    _dropRow = row;
    _dropOperation = operation;
}

- (void)proposeDropAt:(NSPoint)place {
    const NSInteger row = [self rowAtPoint:place];
    if (row < 0) {
        [self setDropRow:place.y < 0 ? 0 : [self numberOfRows] dropOperation:NSTableViewDropAbove];
        return;
    }
    const NSRect frame = [self rectOfRow:row];
    const CGFloat part = (place.y - NSMinY(frame)) / NSHeight(frame);
    if (part < 0.25) {
        [self setDropRow:row dropOperation:NSTableViewDropAbove];
    } else if (part > 0.75) {
        [self setDropRow:row + 1 dropOperation:NSTableViewDropAbove];
    } else {
        [self setDropRow:row dropOperation:NSTableViewDropOn];
    }
}

- (NSDragOperation)validateDrag:(id<NSDraggingInfo>)info {
    id source = [self dataSource];
    if (![source respondsToSelector:@selector(tableView:validateDrop:proposedRow:proposedDropOperation:)]) {
        return NSDragOperationNone;
    }
    [self proposeDropAt:[self convertPoint:[info draggingLocation] fromView:nil]];
    const NSDragOperation answer = [source tableView:self
                                                validateDrop:info
                                                 proposedRow:_dropRow
                                       proposedDropOperation:_dropOperation] &
                                   [info draggingSourceOperationMask];
    [self showDropMark:answer != NSDragOperationNone];
    return answer;
}

- (void)scrollTowards:(NSPoint)place {
    const NSRect visible = [self visibleRect];
    const CGFloat step = [self rowHeight] / 2;
    if (place.y < NSMinY(visible) + scrollMargin) {
        [self scrollRectToVisible:NSOffsetRect(visible, 0, -std::min(step, NSMinY(visible)))];
    } else if (place.y > NSMaxY(visible) - scrollMargin && NSMaxY(visible) < NSMaxY([self bounds])) {
        [self scrollRectToVisible:NSOffsetRect(visible, 0, step)];
    }
}

- (NSRect)frameOfDropMark {
    if (_dropOperation == NSTableViewDropOn) {
        // Row -1 stands for the whole table.
        return _dropRow < 0 ? [self visibleRect] : [self rectOfRow:_dropRow];
    }
    const CGFloat middle = static_cast<CGFloat>(_dropRow) * [self rowHeight];
    return NSMakeRect(0, std::max(0.0, middle - lineHeight / 2), NSWidth([self bounds]), lineHeight);
}

- (void)showDropMark:(BOOL)shown {
    // Neither a view that moves nor one that goes has what was below it drawn again.
    [self setNeedsDisplayInRect:[_dropMark frame]];
    if (!shown) {
        [_dropMark removeFromSuperview];
        return;
    }
    if (!_dropMark) {
        _dropMark = [[TNDropMark alloc] initWithFrame:NSZeroRect];
    }
    [_dropMark setFrame:[self frameOfDropMark]];
    if ([_dropMark superview] != self || [[self subviews] lastObject] != _dropMark) {
        [self addSubview:_dropMark];
    }
    [_dropMark setNeedsDisplay:YES];
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
    return [self validateDrag:info];
}

/// Comes also while the mouse rests.
- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
    [self scrollTowards:[self convertPoint:[info draggingLocation] fromView:nil]];
    return [self validateDrag:info];
}

- (void)draggingExited:(id<NSDraggingInfo>)info {
    [self showDropMark:NO];
}

- (BOOL)prepareForDragOperation:(id<NSDraggingInfo>)info {
    return [self validateDrag:info] != NSDragOperationNone;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
    [self showDropMark:NO];
    id source = [self dataSource];
    return [source respondsToSelector:@selector(tableView:acceptDrop:row:dropOperation:)] &&
           [source tableView:self acceptDrop:info row:_dropRow dropOperation:_dropOperation];
}

- (void)concludeDragOperation:(id<NSDraggingInfo>)info {
    [self showDropMark:NO];
}

@end
