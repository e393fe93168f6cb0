// Wrong: tab views, as of GNUstep GUI 0.29, which never draw a background, and when the tab that is shown is
// selected again take its view out, put it in again and draw all of it anew. On macOS a tab view of any kind
// has a background until it is told otherwise.

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using Initialize = id (*)(id self, SEL command, NSRect frame);
Initialize nativeInitialize = nullptr;
using Draw = void (*)(NSTabView *self, SEL command, NSRect rect);
Draw nativeDraw = nullptr;
using Select = void (*)(NSTabView *self, SEL command, NSTabViewItem *item);
Select nativeSelect = nullptr;

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

void selectItem(NSTabView *self, SEL command, NSTabViewItem *item) {
    const bool isShown = item && item == [self selectedTabViewItem] && [[item view] superview] == self;
    if (!isShown) {
        nativeSelect(self, command, item);
    }
}

} // namespace

@interface NSTabView (TNTabViews)
@end

@implementation NSTabView (TNTabViews)

+ (void)load {
    nativeInitialize = TNReplaceMethod(self, @selector(initWithFrame:), initialize);
    nativeDraw = TNReplaceMethod(self, @selector(drawRect:), draw);
    nativeSelect = TNReplaceMethod(self, @selector(selectTabViewItem:), selectItem);
}

@end
