#pragma once

#import <AppKit/AppKit.h>

/// Holds a cell's one control. When the table gives the cell its place, a text field is made to end where the
/// column ends, so that a long text is truncated instead of cut off. In a selected row it tells the
/// control what that stands on. Rows tell the views that listen, and their names are fixed.
@interface CellContainerView : NSView
- (void)setBackgroundStyle:(NSBackgroundStyle)style;
@end
