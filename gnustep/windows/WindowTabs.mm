// Missing: windows as tabs of one another, as of GNUstep GUI 0.29. A window that is to be none needs no more
// than the method by which it says so.

#import "TNAdditions.h"

@implementation NSWindow (TNTabs)

- (void)setTabbingMode:(NSWindowTabbingMode)mode {
    (void)mode;
}

@end
