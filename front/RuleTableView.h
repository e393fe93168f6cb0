#pragma once

#import <AppKit/AppKit.h>

/// Posted by a table once it has loaded its rows anew: after every change of its list.
extern NSString *const RuleTableViewDidReloadNotification;

/// A table of rules with its keyboard: Delete presses the remove button, Return edits the selected row's
/// name, Space clicks its switch, the Menu key opens its menu. Each does only what the control itself would
/// do just then. What is typed selects a row, and Escape closes the find bar: both are its target's, the
/// controller's, business. A menu of a row selects it first. Drags of files are the page's.
@interface RuleTableView : NSTableView {
@private
    NSButton *_removeButton;
    NSString *_nameColumn;
    NSString *_switchColumn;
    NSView *_emptyHint;
    NSView *_fileDropView;
    NSMenu *_emptySpaceMenu;
}

/// Not retained: the button stands beside the table in the same window.
- (void)setRemoveButton:(NSButton *)button;
/// The identifiers of the columns that Return and Space act on; empty where there is none.
- (void)setNameColumn:(NSString *)nameColumn switchColumn:(NSString *)switchColumn;

/// The menu where there are no rows; that of the rows is the table's own.
- (void)setEmptySpaceMenu:(NSMenu *)menu;

/// Begins to edit the text that the selected row has in this column, if it may be edited.
- (void)editSelectedRowInColumn:(NSString *)identifier;

/// Takes the drags of files in the table's place. Not retained: the table stands in it.
- (void)setFileDropView:(NSView *)view;

/// Ends the edit of a field in this table without storing anything: the row shows what it did before.
- (void)abandonEditOf:(NSControl *)field;

/// Shown in the middle of the table while that has no rows.
- (void)setEmptyHint:(NSView *)hint;

@end

@interface NSTableView (RuleReloading)

/// Nothing while one of its fields is being edited: the end of that edit reloads.
- (void)reloadDataUnlessEdited;

@end
