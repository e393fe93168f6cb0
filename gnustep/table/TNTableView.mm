// Missing: view-based tables, as of GNUstep GUI 0.29, which has no view for a cell and takes no height from
// the delegate. Views exist for the rows on screen alone.

#import "TNTableView.h"

#import "TNTheme.h"
#import "gnustep/runtime/RunLoopModes.h"

@implementation TNTableView

- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self) {
        _dropRow = -1;
    }
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
    [self dropRowViews];
    [_dropMark release];
    [super dealloc];
}

#pragma mark Views

- (NSView *)makeCellAtColumn:(NSInteger)column row:(NSInteger)row {
    NSTableColumn *tableColumn = [[self tableColumns] objectAtIndex:static_cast<NSUInteger>(column)];
    NSView *cell = [(id)[self delegate] tableView:self viewForTableColumn:tableColumn row:row];
    [cell setFrame:[self frameOfCellAtColumn:column row:row]];
    return cell;
}

- (void)makeRow:(NSInteger)row {
    std::vector<NSView *> cells;
    for (NSInteger column = 0; column < [self numberOfColumns]; ++column) {
        NSView *cell = [self makeCellAtColumn:column row:row];
        cells.push_back([cell retain]);
        if (cell) {
            [self addSubview:cell];
        }
    }
    _rowViews[row] = std::move(cells);
}

/// A field that is still being edited goes without a word: its row may be another one by now.
- (void)dropCells:(const std::vector<NSView *> &)cells {
    NSTextField *field = [self editedField];
    for (NSView *cell : cells) {
        if ([field isDescendantOf:cell]) {
            [field abortEditing];
            [[self window] makeFirstResponder:self];
            // It goes with its cell.
            field = nil;
        }
        [cell removeFromSuperview];
        [cell release];
    }
}

- (void)dropRowViews {
    // The map is emptied first: removing a view can end an edit, which comes back here.
    std::map<NSInteger, std::vector<NSView *>> rows;
    rows.swap(_rowViews);
    for (const auto &[row, cells] : rows) {
        [self dropCells:cells];
    }
}

- (NSTextField *)editedField {
    NSTextField *field = TNEditedFieldOf([self window]);
    return [field isDescendantOf:self] ? field : nil;
}

- (void)syncRowViews {
    _needsRows = NO;
    if (![self window] || ![[self delegate] respondsToSelector:@selector(tableView:
                                                                   viewForTableColumn:row:)]) {
        return;
    }
    const NSRange visible =
        [self isHiddenOrHasHiddenAncestor] ? NSMakeRange(0, 0) : [self rowsInRect:[self visibleRect]];
    const NSInteger editedRow = [self rowForView:[self editedField]];
    for (auto entry = _rowViews.begin(); entry != _rowViews.end();) {
        const auto row = static_cast<NSUInteger>(entry->first);
        if (NSLocationInRange(row, visible) || entry->first == editedRow) {
            for (std::size_t column = 0; column < entry->second.size(); ++column) {
                [entry->second[column] setFrame:[self frameOfCellAtColumn:static_cast<NSInteger>(column)
                                                                      row:entry->first]];
            }
            ++entry;
        } else {
            const auto cells = entry->second;
            entry = _rowViews.erase(entry);
            [self dropCells:cells];
        }
    }
    for (NSUInteger row = visible.location; row < NSMaxRange(visible); ++row) {
        if (_rowViews.count(static_cast<NSInteger>(row)) == 0) {
            [self makeRow:static_cast<NSInteger>(row)];
        }
    }
}

- (void)makeNeededRows {
    if (_needsRows) {
        [self syncRowViews];
    }
}

/// Rows that are still to be made find their places then.
- (void)placeRowViews {
    if (!_needsRows) {
        [self syncRowViews];
    }
}

- (NSView *)cellAtColumn:(NSInteger)column row:(NSInteger)row {
    const auto found = _rowViews.find(row);
    if (found == _rowViews.end() || column < 0 || column >= static_cast<NSInteger>(found->second.size())) {
        return nil;
    }
    return found->second[static_cast<std::size_t>(column)];
}

- (NSView *)viewAtColumn:(NSInteger)column row:(NSInteger)row makeIfNecessary:(BOOL)makeIfNecessary {
    if (row < 0 || row >= [self numberOfRows] || column < 0 || column >= [self numberOfColumns]) {
        return nil;
    }
    if (makeIfNecessary) {
        [self syncRowViews];
    }
    NSView *cell = [self cellAtColumn:column row:row];
    return cell || !makeIfNecessary ? cell : [self makeCellAtColumn:column row:row];
}

- (NSInteger)rowForView:(NSView *)view {
    for (const auto &[row, cells] : _rowViews) {
        for (NSView *cell : cells) {
            if (view && [view isDescendantOf:cell]) {
                return row;
            }
        }
    }
    return -1;
}

- (NSInteger)columnForView:(NSView *)view {
    for (const auto &[row, cells] : _rowViews) {
        for (std::size_t column = 0; column < cells.size(); ++column) {
            if (view && [view isDescendantOf:cells[column]]) {
                return static_cast<NSInteger>(column);
            }
        }
    }
    return -1;
}

#pragma mark Loading and layout

- (void)reloadData {
    const NSInteger selected = [self selectedRow];
    if (![self editedField]) {
        [self exchangeRowViews];
    }
    [super reloadData];
    if (selected >= 0 && selected < [self numberOfRows] && selected != [self selectedRow]) {
        [self selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(selected)]
            byExtendingSelection:NO];
    }
    // The field is still needed by the edit that ends just now.
    if ([self editedField] && !_reloadIsPending) {
        _reloadIsPending = YES;
        [self performSelector:@selector(exchangeRowViews)
                   withObject:nil
                   afterDelay:0
                      inModes:TNWorkingModes()];
    }
}

- (void)finishReload {
    if (_reloadIsPending) {
        [NSObject cancelPreviousPerformRequestsWithTarget:self
                                                 selector:@selector(exchangeRowViews)
                                                   object:nil];
        [self exchangeRowViews];
    }
    [self makeNeededRows];
}

/// The old rows go at once, so that nothing acts for another row than it shows; the new ones come when they
/// are shown or asked for.
- (void)exchangeRowViews {
    _reloadIsPending = NO;
    // First, so that no row that goes marks its own part of the table.
    [self setNeedsDisplay:YES];
    [self dropRowViews];
    _needsRows = YES;
}

- (void)displayRectIgnoringOpacity:(NSRect)rect inContext:(NSGraphicsContext *)context {
    [self makeNeededRows];
    [super displayRectIgnoringOpacity:rect inContext:context];
}

- (void)setDataSource:(id)dataSource {
    [super setDataSource:dataSource];
    [self takeRowHeight];
}

- (void)setDelegate:(id)delegate {
    [super setDelegate:delegate];
    [self takeRowHeight];
}

/// The delegate is asked about rows that are there alone.
- (void)takeRowHeight {
    if ([self numberOfRows] == 0 || ![[self delegate] respondsToSelector:@selector(tableView:heightOfRow:)]) {
        return;
    }
    const CGFloat height =
        [(id)[self delegate] tableView:self heightOfRow:0] + [self intercellSpacing].height;
    if (height > 0 && height != [self rowHeight]) {
        [self setRowHeight:height];
    }
}

- (void)noteNumberOfRowsChanged {
    [super noteNumberOfRowsChanged];
    [self takeRowHeight];
}

- (void)tile {
    [super tile];
    [self placeRowViews];
}

- (void)setFrameSize:(NSSize)size {
    [super setFrameSize:size];
    [self placeRowViews];
}

- (void)viewDidMoveToWindow {
    [super viewDidMoveToWindow];
    [self placeRowViews];
}

- (void)viewDidMoveToSuperview {
    [super viewDidMoveToSuperview];
    NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
    [center removeObserver:self name:NSViewBoundsDidChangeNotification object:nil];
    [center removeObserver:self name:NSViewFrameDidChangeNotification object:nil];
    NSView *clip = [self superview];
    if (clip) {
        [clip setPostsBoundsChangedNotifications:YES];
        [clip setPostsFrameChangedNotifications:YES];
        [center addObserver:self
                   selector:@selector(clipViewChanged:)
                       name:NSViewBoundsDidChangeNotification
                     object:clip];
        [center addObserver:self
                   selector:@selector(clipViewResized:)
                       name:NSViewFrameDidChangeNotification
                     object:clip];
    }
    [self fillWidth];
}

- (void)clipViewChanged:(NSNotification *)notification {
    [self placeRowViews];
}

- (void)clipViewResized:(NSNotification *)notification {
    [self fillWidth];
    [self placeRowViews];
}

@end
