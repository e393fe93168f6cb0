#pragma once

#import <AppKit/AppKit.h>

/// Gives the selected row of a table a folder: enabled while a row is selected, and tagged with that row, so
/// that its action finds it.
@interface ChooseFolderButton : NSButton {
@private
    NSTableView *_table;
}

/// Follows this table from now on. The table is not retained.
- (void)followTable:(NSTableView *)table;

@end
