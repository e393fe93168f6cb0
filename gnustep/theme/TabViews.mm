// Missing: the background of tab views, as of GNUstep GUI 0.29, which keeps what it is told of it, begins
// with none and never draws one. On macOS a tab view of any kind has one until it is told otherwise.

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using Initialize = id (*)(id self, SEL command, NSRect frame);
Initialize nativeInitialize = nullptr;
using Draw = void (*)(NSTabView *self, SEL command, NSRect rect);
Draw nativeDraw = nullptr;

id initialize(id self, SEL command, NSRect frame) {
    self = nativeInitialize(self, command, frame);
    [self setDrawsBackground:YES];
    return self;
}

void draw(NSTabView *self, SEL command, NSRect rect) {
    if ([self drawsBackground]) {
        [[NSColor windowBackgroundColor] set];
        NSRectFill([self bounds]);
    }
    nativeDraw(self, command, rect);
}

} // namespace

@interface NSTabView (TNBackground)
@end

@implementation NSTabView (TNBackground)

+ (void)load {
    nativeInitialize = TNReplaceMethod(self, @selector(initWithFrame:), initialize);
    nativeDraw = TNReplaceMethod(self, @selector(drawRect:), draw);
}

@end
