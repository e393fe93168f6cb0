// Wrong: the place of tool tips, as of GNUstep GUI 0.29, where it stays the bounds that the view had when the
// text was set: a view that gets its size later never shows it. Here the place follows the view's size.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using SetFrame = void (*)(id self, SEL command, NSRect frame);
using SetFrameSize = void (*)(id self, SEL command, NSSize size);
SetFrame nativeSetFrame = nullptr;
SetFrameSize nativeSetFrameSize = nullptr;

void placeAnew(NSView *view) {
    NSString *text = [[[view toolTip] retain] autorelease];
    if ([text length] > 0) {
        [view setToolTip:nil];
        [view setToolTip:text];
    }
}

void setFrame(id self, SEL command, NSRect frame) {
    const NSSize before = [self frame].size;
    nativeSetFrame(self, command, frame);
    if (!NSEqualSizes([self frame].size, before)) {
        placeAnew(self);
    }
}

void setFrameSize(id self, SEL command, NSSize size) {
    const NSSize before = [self frame].size;
    nativeSetFrameSize(self, command, size);
    if (!NSEqualSizes([self frame].size, before)) {
        placeAnew(self);
    }
}

} // namespace

@interface NSView (TNToolTips)
@end

@implementation NSView (TNToolTips)

+ (void)load {
    nativeSetFrame = TNReplaceMethod(self, @selector(setFrame:), setFrame);
    nativeSetFrameSize = TNReplaceMethod(self, @selector(setFrameSize:), setFrameSize);
}

@end
