// Missing: clicks and editing in view-based tables, as of GNUstep GUI 0.29, which edits cells, leaves a click
// in empty space without effect, and sends no action from an empty table.

#import "TNTableView.h"

#import "TNTheme.h"

#include <cmath>

namespace {

constexpr CGFloat dragThreshold = 4;

/// The first editable text field in a cell.
NSTextField *editableField(NSView *view) {
    if ([view isKindOfClass:[NSTextField class]]) {
        return [(NSTextField *)view isEditable] ? (NSTextField *)view : nil;
    }
    for (NSView *inner in [view subviews]) {
        if (NSTextField *field = editableField(inner)) {
            return field;
        }
    }
    return nil;
}

bool takesItsOwnClicks(NSView *view) {
    if ([view isKindOfClass:[NSText class]]) {
        return true;
    }
    return [view isKindOfClass:[NSControl class]] && ![view isKindOfClass:[NSTextField class]] &&
           ![view isKindOfClass:[NSImageView class]] && [(NSControl *)view isEnabled];
}

} // namespace

@implementation TNTableView (Mouse)

/// Labels, pictures and plain areas are the row's; so are text fields until they are edited.
- (NSView *)hitTest:(NSPoint)point {
    [self makeNeededRows];
    NSView *hit = [super hitTest:point];
    if (!hit || hit == self) {
        return hit;
    }
    for (NSView *view = hit; view && view != self; view = [view superview]) {
        if (takesItsOwnClicks(view)) {
            return hit;
        }
    }
    return self;
}

- (void)mouseDown:(NSEvent *)event {
    // Ends a running edit first.
    if (![[self window] makeFirstResponder:self]) {
        return;
    }
    const NSPoint place = [self convertPoint:[event locationInWindow] fromView:nil];
    const NSInteger row = [self rowAtPoint:place];
    const NSInteger column = [self columnAtPoint:place];
    _clickedRow = row;
    _clickedColumn = column;
    const BOOL wasSelected = row >= 0 && [self isRowSelected:row];
    [self selectClickedRow:row];
    if ([self leavesForDragFrom:event] && row >= 0) {
        [self dragRowsFromEvent:event];
        return;
    }
    if ([event clickCount] == 2) {
        [self finishDoubleClickAtColumn:column row:row];
        return;
    }
    [self sendAction:[self action] to:[self target]];
    if (wasSelected && [event clickCount] == 1) {
        [self editFieldAtColumn:column row:row];
    }
}

/// A field that can be edited goes ahead of the double action, which goes ahead of the action.
- (void)finishDoubleClickAtColumn:(NSInteger)column row:(NSInteger)row {
    if (row < 0 || ![self editFieldAtColumn:column row:row]) {
        [self sendAction:[self doubleAction] ? [self doubleAction] : [self action] to:[self target]];
    }
}

/// A click in empty space takes the selection away.
- (void)selectClickedRow:(NSInteger)row {
    if (row < 0) {
        [self deselectAll:self];
    } else {
        [self selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(row)]
            byExtendingSelection:NO];
    }
}

/// Follows the mouse until it is let go (no) or has left its place (yes).
- (BOOL)leavesForDragFrom:(NSEvent *)event {
    const NSPoint start = [event locationInWindow];
    for (;;) {
        NSEvent *next = [[self window] nextEventMatchingMask:NSLeftMouseUpMask | NSLeftMouseDraggedMask
                                                   untilDate:[NSDate distantFuture]
                                                      inMode:NSEventTrackingRunLoopMode
                                                     dequeue:YES];
        if ([next type] == NSLeftMouseUp) {
            return NO;
        }
        const NSPoint place = [next locationInWindow];
        if (std::hypot(place.x - start.x, place.y - start.y) >= dragThreshold) {
            return YES;
        }
    }
}

- (BOOL)editFieldAtColumn:(NSInteger)column row:(NSInteger)row {
    [self finishReload];
    NSTextField *field = editableField([self cellAtColumn:column row:row]);
    return field && [[self window] makeFirstResponder:field];
}

@end

@implementation TNTableView (Editing)

- (void)viewWillMoveToWindow:(NSWindow *)window {
    [super viewWillMoveToWindow:window];
    NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
    [center removeObserver:self name:NSControlTextDidEndEditingNotification object:nil];
    for (NSString *name in [NSArray arrayWithObjects:NSWindowDidBecomeKeyNotification,
                                    NSWindowDidResignKeyNotification, TNWindowDidMoveFocus, nil]) {
        [center removeObserver:self name:name object:nil];
        if (window) {
            [center addObserver:self selector:@selector(focusMoved:) name:name object:window];
        }
    }
    if (window) {
        [center addObserver:self
                   selector:@selector(fieldEndedEditing:)
                       name:NSControlTextDidEndEditingNotification
                     object:nil];
    }
}

/// It has another colour while the keyboard is elsewhere.
- (void)focusMoved:(NSNotification *)notification {
    if ([self selectedRow] >= 0) {
        [self setNeedsDisplayInRect:[self rectOfRow:[self selectedRow]]];
    }
}

/// After Return or Tab the table takes over: the field would otherwise begin a second edit.
- (void)fieldEndedEditing:(NSNotification *)notification {
    id field = [notification object];
    const NSInteger movement = [[[notification userInfo] objectForKey:@"NSTextMovement"] integerValue];
    const bool isKey = movement == NSReturnTextMovement || movement == NSTabTextMovement ||
                       movement == NSBacktabTextMovement || movement == NSCancelTextMovement;
    if (isKey && [field isKindOfClass:[NSTextField class]] && [field isDescendantOf:self]) {
        [[self window] makeFirstResponder:self];
    }
}

@end
