// Missing: the close button that a window manager gives to every window, as of GNUstep GUI 0.29: alerts and
// file panels do not say that they can be asked to close, so it cuts the program off, which ends. Here
// closing one is pressing Escape in it.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using Init = id (*)(
    id self, SEL command, NSRect rect, NSUInteger style, NSBackingStoreType backing, BOOL defer);

Init nativeInit = nullptr;

id initClosable(id self, SEL command, NSRect rect, NSUInteger style, NSBackingStoreType backing, BOOL defer) {
    const NSUInteger closable = style & NSTitledWindowMask ? NSClosableWindowMask : 0;
    return nativeInit(self, command, rect, style | closable, backing, defer);
}

} // namespace

@interface NSPanel (TNClosing)
@end

@implementation NSPanel (TNClosing)

+ (void)load {
    nativeInit = TNReplaceMethod(self, @selector(initWithContentRect:styleMask:backing:defer:), initClosable);
}

/// A modal panel is closed by its own buttons and keys.
- (BOOL)windowShouldClose:(id)sender {
    if ([NSApp modalWindow] != self) {
        return YES;
    }
    [NSApp postEvent:[NSEvent keyEventWithType:NSEventTypeKeyDown
                                            location:NSZeroPoint
                                       modifierFlags:0
                                           timestamp:0
                                        windowNumber:[self windowNumber]
                                             context:nil
                                          characters:@"\x1B"
                         charactersIgnoringModifiers:@"\x1B"
                                           isARepeat:NO
                                             keyCode:0]
             atStart:NO];
    return NO;
}

@end
