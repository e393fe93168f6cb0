// Missing: stripes and a selection that dark text can be read on, as of GNUstep GUI 0.29, which selects in a
// dark colour, wherever the keyboard is, and draws cells.

#import "TNTableView.h"

#import "TNTheme.h"

@implementation TNTableView (Drawing)

- (void)setStyle:(NSTableViewStyle)style {
}

- (void)setGridStyleMask:(NSTableViewGridLineStyle)mask {
    [super setGridStyleMask:mask];
    [self setDrawsGrid:mask != NSTableViewGridNone];
}

- (void)setUsesAlternatingRowBackgroundColors:(BOOL)flag {
    _alternatesRows = flag;
    [self setNeedsDisplay:YES];
}

- (BOOL)usesAlternatingRowBackgroundColors {
    return _alternatesRows;
}

- (void)drawBackgroundInClipRect:(NSRect)clip {
    [[self backgroundColor] set];
    NSRectFill(clip);
    if (!_alternatesRows) {
        return;
    }
    const CGFloat height = [self rowHeight];
    [TNThemeCurrentColors()->alternateRow set];
    for (auto stripe = static_cast<NSInteger>(NSMinY(clip) / height);
         static_cast<CGFloat>(stripe) * height < NSMaxY(clip); ++stripe) {
        if (stripe % 2 == 1) {
            NSRectFill(NSIntersectionRect(clip,
                NSMakeRect(NSMinX(clip), static_cast<CGFloat>(stripe) * height, NSWidth(clip), height)));
        }
    }
}

/// Also while a field in it is edited.
- (BOOL)hasKeyboard {
    NSWindow *window = [self window];
    return [window isKeyWindow] && ([window firstResponder] == self || [self editedField]);
}

- (void)highlightSelectionInClipRect:(NSRect)clip {
    const auto *colors = TNThemeCurrentColors();
    [([self hasKeyboard] ? colors->selectedRow : colors->selectedRowInactive) set];
    NSRectFill(NSIntersectionRect(clip, [self rectOfRow:[self selectedRow]]));
}

/// Views draw the cells.
- (void)drawRow:(NSInteger)row clipRect:(NSRect)clip {
}

@end
