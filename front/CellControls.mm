#import "front/CellControls.h"

@implementation CellTextField

- (BOOL)mouseDownCanMoveWindow {
    return NO;
}

@end

@implementation CellImageView

- (BOOL)mouseDownCanMoveWindow {
    return NO;
}

@end
