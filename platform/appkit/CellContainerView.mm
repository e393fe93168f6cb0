#import "platform/appkit/CellContainerView.h"

#include <algorithm>

@implementation CellContainerView

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
    for (NSView *view in [self subviews]) {
        if ([view isKindOfClass:[NSTextField class]]) {
            NSRect frame = [view frame];
            frame.size.width = std::max(0.0, NSWidth([self bounds]) - NSMinX(frame));
            [view setFrame:frame];
        }
    }
}

@end
