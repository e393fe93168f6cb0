#pragma once

#import <AppKit/AppKit.h>

#include "gnustep/menus/TNMenuRows.h"

#include <memory>

/// The rows, as far as they can be seen.
@interface TNMenuView : NSView {
@public
    NSMenu *menu;
    std::unique_ptr<TNMenuRows> rows;
    NSInteger highlighted;
    CGFloat offset;
}
/// What the arrows above and below leave.
- (NSRect)visibleRows;
- (void)scrollTo:(CGFloat)wanted;
- (NSRect)placeOfRow:(NSInteger)row;
/// -1, 1 or 0: where the rows scroll while the pointer rests there.
- (int)scrollDirectionAt:(NSPoint)place;
/// Scrolls no farther than the row needs.
- (void)scrollToRow:(NSInteger)row;
@end
