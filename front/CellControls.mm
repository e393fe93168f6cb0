#import "front/CellControls.h"

@implementation CellTextField

/// Sent by the row when this is the cell itself, else by the container.
- (void)setBackgroundStyle:(NSBackgroundStyle)style {
    [[self cell] setBackgroundStyle:style];
}

- (BOOL)mouseDownCanMoveWindow {
    return NO;
}

@end

@implementation CellImageView

- (BOOL)mouseDownCanMoveWindow {
    return NO;
}

@end
