// Wrong: the press of a button by a key, as of GNUstep GUI 0.29. It runs the run loop for a tenth of a second
// while it draws into the button: when that went with its row meanwhile an exception was raised, and the
// press lost. Here the button acts at once.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

void performClick(id self, SEL, NSRect, NSView *view) {
    if ([self isEnabled]) {
        [self setNextState];
        [view setNeedsDisplay:YES];
        [static_cast<NSControl *>(view) sendAction:[self action] to:[self target]];
    }
}

} // namespace

@interface NSButtonCell (TNButtonPresses)
@end

@implementation NSButtonCell (TNButtonPresses)

+ (void)load {
    TNReplaceMethod(self, @selector(performClickWithFrame:inView:), performClick);
}

@end
