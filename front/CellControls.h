#pragma once

#import <AppKit/AppKit.h>

/// What stands in a table's cells. The mouse on it selects or drags its row: never the window, which moves by
/// its background otherwise.

/// In a selected row its text takes the colour that goes with the selection.
@interface CellTextField : NSTextField
- (void)setBackgroundStyle:(NSBackgroundStyle)style;
@end

@interface CellImageView : NSImageView
@end
