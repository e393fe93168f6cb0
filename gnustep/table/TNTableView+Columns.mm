// Wrong: the widths of columns in a table that grows or shrinks, as of GNUstep GUI 0.29, which gives all that
// is gained or lost to the last one, whatever the columns' resizing masks are.

#import "TNTableView.h"

#import "gnustep/start/LayoutDirection.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr CGFloat minimumColumnWidth = 40;

} // namespace

@implementation TNTableView (Columns)

/// The first is where reading begins. On macOS it is the first there too; here it is the last among the
/// columns.
- (void)addTableColumn:(NSTableColumn *)column {
    [super addTableColumn:column];
    if (TNReadsFromRightToLeft()) {
        [self moveColumn:[self numberOfColumns] - 1 toColumn:0];
    }
}

- (void)sizeToFit {
    [self fillWidth];
}

/// What GNUstep does of its own when the width changes: the last column alone would gain or lose.
- (void)sizeLastColumnToFit {
    [self fillWidth];
}

/// Gives the columns that resize with the table equal shares of what is gained or lost.
- (void)fillWidth {
    NSView *clip = [self superview];
    if (!clip || _isFillingWidth || [self numberOfColumns] == 0) {
        return;
    }
    CGFloat used = 0;
    NSMutableArray *flexible = [NSMutableArray array];
    for (NSTableColumn *column in [self tableColumns]) {
        used += [column width];
        if (([column resizingMask] & NSTableColumnAutoresizingMask) != 0) {
            [flexible addObject:column];
        }
    }
    const CGFloat available = NSWidth([clip bounds]);
    if ([flexible count] == 0 || available <= 0 || used == available) {
        return;
    }
    _isFillingWidth = YES;
    CGFloat rest = available - used;
    NSUInteger left = [flexible count];
    for (NSTableColumn *column in flexible) {
        const CGFloat share = std::floor(rest / static_cast<CGFloat>(left));
        const CGFloat width = std::max({minimumColumnWidth, [column minWidth], [column width] + share});
        rest -= width - [column width];
        --left;
        [column setWidth:width];
    }
    _isFillingWidth = NO;
    [self tile];
    [[self headerView] setNeedsDisplay:YES];
}

@end
