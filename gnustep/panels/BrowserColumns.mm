// Wrong: the ground of the columns of a browser, as of GNUstep GUI 0.29, which is the colour of controls
// behind what stands in a column and that of texts below it: a grey patch that ends somewhere. And a long
// name above a column, of which both ends are missing.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

NSColor *backgroundColor(id, SEL) {
    return [NSColor controlBackgroundColor];
}

NSLineBreakMode titleBreakMode(id, SEL) {
    return NSLineBreakByTruncatingMiddle;
}

} // namespace

@interface NSBrowser (TNColumns)
@end

@implementation NSBrowser (TNColumns)

+ (void)load {
    TNReplaceMethod(self, @selector(backgroundColor), backgroundColor);
    // The class inherits its own from all cells.
    class_addMethod(NSClassFromString(@"GSBrowserTitleCell"), @selector(lineBreakMode),
        reinterpret_cast<IMP>(titleBreakMode), "Q@:");
}

@end
