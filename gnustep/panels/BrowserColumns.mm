// Wrong: the ground of the columns of a browser, as of GNUstep GUI 0.29, which is the colour of controls
// behind what stands in a column and that of texts below it: a grey patch that ends somewhere.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

NSColor *backgroundColor(id, SEL) {
    return [NSColor controlBackgroundColor];
}

} // namespace

@interface NSBrowser (TNColumns)
@end

@implementation NSBrowser (TNColumns)

+ (void)load {
    TNReplaceMethod(self, @selector(backgroundColor), backgroundColor);
}

@end
