#pragma once

// Missing: view-based tables, as of GNUstep GUI 0.29; see TNTableView.mm.

#import <AppKit/AppKit.h>

#import "TNConstants.h"

#include <map>
#include <vector>

/// A table that asks its delegate for a view per cell, for the rows on screen alone, and handles mouse,
/// editing, selection and row dragging as AppKit's does. All rows are as high as the first, and one at most
/// is selected.
@interface TNTableView : NSTableView {
@private
    std::map<NSInteger, std::vector<NSView *>> _rowViews;
    NSView *_dropMark;
    NSInteger _dropRow;
    NSTableViewDropOperation _dropOperation;
    BOOL _alternatesRows;
    BOOL _reloadIsPending;
    BOOL _isFillingWidth;
    BOOL _needsRows;
}

/// Nil outside the table, and for a row off screen unless one is to be made. The rows of a table that was
/// reloaded are made when they are next shown.
- (NSView *)viewAtColumn:(NSInteger)column row:(NSInteger)row makeIfNecessary:(BOOL)makeIfNecessary;
/// -1 for a view that is in no row.
- (NSInteger)rowForView:(NSView *)view;
- (NSInteger)columnForView:(NSView *)view;

@end

/// What the parts of the table share.
@interface TNTableView (Parts)
/// Brings the live views in line with the rows on screen.
- (void)syncRowViews;
/// The same, when the views went by a reload and have not come back yet.
- (void)makeNeededRows;
- (void)dropRowViews;
/// Makes the views now that would otherwise come at the next display, or once an edit has ended.
- (void)finishReload;
/// Gives the columns that resize with the table equal shares of what is gained or lost.
- (void)fillWidth;
/// The field being edited in this table; nil when there is none.
- (NSTextField *)editedField;
- (NSView *)cellAtColumn:(NSInteger)column row:(NSInteger)row;
@end

@interface TNTableView (Drawing)
/// Without effect: rows are always plain, without room at their sides.
- (void)setStyle:(NSTableViewStyle)style;
@end

@interface TNTableView (Dragging)
/// Starts dragging the selected rows if the data source lets it.
- (void)dragRowsFromEvent:(NSEvent *)event;
@end

@interface NSObject (TNTableViewDelegate)
- (NSView *)tableView:(TNTableView *)tableView viewForTableColumn:(NSTableColumn *)column row:(NSInteger)row;
- (CGFloat)tableView:(TNTableView *)tableView heightOfRow:(NSInteger)row;
@end
