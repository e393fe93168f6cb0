// Wrong: open and save panels that are begun with a block, as of GNUstep GUI 0.29, where the block of an open
// panel is called at Cancel alone, and the save panel comes up anywhere, beside a window that goes on
// working, with an OK that cannot be pressed. Here both are modal for the application; as on macOS, beginning
// returns at once. Missing too: a folder to begin in when the one asked for is not there, where the last
// panel ended, or whatever folder the program was started in; here it is the user's home.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

void begin(id self, SEL, GSSavePanelCompletionHandler handler) {
    id block = [[(id)handler copy] autorelease];
    // In the default mode alone: one that the panel's own loop runs in would begin a second panel inside it.
    [self performSelector:@selector(tnRunWithHandler:) withObject:block afterDelay:0];
}

void setDirectoryURL(id self, SEL, NSURL *url) {
    BOOL isFolder = NO;
    const BOOL exists = [[NSFileManager defaultManager] fileExistsAtPath:[url path] isDirectory:&isFolder];
    [self setDirectory:exists && isFolder ? [url path] : NSHomeDirectory()];
}

} // namespace

@interface NSSavePanel (TNBeginning)
@end

@implementation NSSavePanel (TNBeginning)

+ (void)load {
    TNReplaceMethod(self, @selector(beginWithCompletionHandler:), begin);
    TNReplaceMethod(self, @selector(setDirectoryURL:), setDirectoryURL);
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
