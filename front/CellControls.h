#pragma once

#import <AppKit/AppKit.h>

/// What stands in a table's cells. The mouse on it selects or drags its row: never the window, which moves by
/// its background otherwise.

@interface CellTextField : NSTextField
@end

@interface CellImageView : NSImageView
@end
