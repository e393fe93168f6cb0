// Missing: the answer of an open panel that was begun with a block and left with OK, as of GNUstep GUI 0.29.
// The panel here is modal for the application; as on macOS, beginning returns at once.

#import <AppKit/AppKit.h>

@interface NSOpenPanel (TNBegin)
@end

@implementation NSOpenPanel (TNBegin)

- (void)beginWithCompletionHandler:(GSSavePanelCompletionHandler)handler {
    id block = [[(id)handler copy] autorelease];
    // In the default mode alone: one that the panel's own loop runs in would begin a second panel inside it.
    [self performSelector:@selector(tnRunWithHandler:) withObject:block afterDelay:0];
}

- (void)tnRunWithHandler:(id)block {
    const NSInteger answer = [self runModalForDirectory:[self directory]
                                                   file:@""
                                                  types:[self allowedFileTypes]];
    auto handler = (GSSavePanelCompletionHandler)block;
    handler(answer == NSModalResponseOK ? NSModalResponseOK : NSModalResponseCancel);
}

@end
