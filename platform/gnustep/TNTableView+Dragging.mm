// Dragging rows. GNUstep proposes row -1 below the last row, draws its mark under the cells and leaves it
// behind; here the mark is a view above them, and drops are proposed as AppKit does: the outer quarters of a
// row are the gaps, its middle the row itself, everything below the last row the last gap.

#import "TNTableView.h"

#import "TNTheme.h"

#include <algorithm>

namespace {

constexpr CGFloat lineHeight = 2;
constexpr CGFloat scrollMargin = 16;

} // namespace

/// The line in the gap where a drop would go.
@interface TNDropLine : NSView
@end

@implementation TNDropLine

- (void)drawRect:(NSRect)rect {
    [TNThemeCurrentColors()->accent set];
    NSRectFill([self bounds]);
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
    const NSRect frame = [self rectOfRow:static_cast<NSInteger>([rows firstIndex])];
    [self dragImage:[self pictureOfRect:NSIntersectionRect(frame, [self visibleRect])]
                 at:NSMakePoint(NSMinX(frame), NSMaxY(frame))
             offset:NSZeroSize
              event:event
         pasteboard:pasteboard
             source:self
          slideBack:NO];
}

- (NSImage *)pictureOfRect:(NSRect)rect {
    [self lockFocus];
    NSBitmapImageRep *pixels = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:rect] autorelease];
    [self unlockFocus];
    NSImage *image = [[[NSImage alloc] initWithSize:rect.size] autorelease];
    if (pixels) {
        [image addRepresentation:pixels];
    }
    return image;
}

- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal {
    return isLocal ? _draggingSourceOperationMaskForLocal : _draggingSourceOperationMaskForRemote;
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
    const NSPoint place = [self convertPoint:[info draggingLocation] fromView:nil];
    [self scrollTowards:place];
    [self proposeDropAt:place];
    const NSDragOperation answer = [source tableView:self
                                                validateDrop:info
                                                 proposedRow:_dropRow
                                       proposedDropOperation:_dropOperation] &
                                   [info draggingSourceOperationMask];
    [self showDropLine:answer != NSDragOperationNone && _dropOperation == NSTableViewDropAbove];
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

- (void)showDropLine:(BOOL)shown {
    if (!shown) {
        [_dropLine removeFromSuperview];
        return;
    }
    if (!_dropLine) {
        _dropLine = [[TNDropLine alloc] initWithFrame:NSZeroRect];
    }
    const CGFloat middle = static_cast<CGFloat>(_dropRow) * [self rowHeight];
    const CGFloat top = std::max(0.0, middle - lineHeight / 2);
    [_dropLine setFrame:NSMakeRect(0, top, NSWidth([self bounds]), lineHeight)];
    if ([_dropLine superview] != self || [[self subviews] lastObject] != _dropLine) {
        [self addSubview:_dropLine];
    }
    [_dropLine setNeedsDisplay:YES];
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
    return [self validateDrag:info];
}

- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
    return [self validateDrag:info];
}

- (void)draggingExited:(id<NSDraggingInfo>)info {
    [self showDropLine:NO];
}

- (BOOL)prepareForDragOperation:(id<NSDraggingInfo>)info {
    return [self validateDrag:info] != NSDragOperationNone;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
    [self showDropLine:NO];
    id source = [self dataSource];
    return [source respondsToSelector:@selector(tableView:acceptDrop:row:dropOperation:)] &&
           [source tableView:self acceptDrop:info row:_dropRow dropOperation:_dropOperation];
}

- (void)concludeDragOperation:(id<NSDraggingInfo>)info {
    [self showDropLine:NO];
}

@end
