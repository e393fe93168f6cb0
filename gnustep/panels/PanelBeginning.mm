// Wrong: open and save panels that are begun with a block, as of GNUstep GUI 0.29, where the block of an open
// panel is called at Cancel alone, and the save panel comes up anywhere, beside a window that goes on
// working, with an OK that cannot be pressed. Here both are modal for the application; as on macOS, beginning
// returns at once.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

void begin(id self, SEL, GSSavePanelCompletionHandler handler) {
    id block = [[(id)handler copy] autorelease];
    // In the default mode alone: one that the panel's own loop runs in would begin a second panel inside it.
    [self performSelector:@selector(tnRunWithHandler:) withObject:block afterDelay:0];
}

} // namespace

@interface NSSavePanel (TNBeginning)
@end

@implementation NSSavePanel (TNBeginning)

+ (void)load {
    TNReplaceMethod(self, @selector(beginWithCompletionHandler:), begin);
}

- (void)tnRunWithHandler:(id)block {
    const bool opens = [self isKindOfClass:[NSOpenPanel class]];
    const NSInteger answer = [self runModalForDirectory:[self directory]
                                                   file:opens ? @"" : [self nameFieldStringValue]];
    if (auto handler = (GSSavePanelCompletionHandler)block) {
        handler(answer == NSModalResponseOK ? NSModalResponseOK : NSModalResponseCancel);
    }
}

@end
