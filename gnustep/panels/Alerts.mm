// Missing: alerts that answer to a block, as of GNUstep GUI 0.29. As its open panels here, such an alert is
// modal for the application, and beginning returns at once.

#import "TNAdditions.h"

@implementation NSAlert (TNSheets)

- (void)beginSheetModalForWindow:(NSWindow *)window completionHandler:(void (^)(NSModalResponse))handler {
    (void)window;
    // In the default mode alone, see OpenPanel.mm.
    [self performSelector:@selector(tnRunWithHandler:)
               withObject:[[(id)handler copy] autorelease]
               afterDelay:0];
}

- (void)tnRunWithHandler:(id)block {
    const NSInteger answer = [self runModal];
    if (block) {
        ((void (^)(NSModalResponse))block)(answer);
    }
}

@end
