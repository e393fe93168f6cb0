// Wrong: the place of a drop that ends before it has been followed, as of GNUstep GUI 0.29, which takes the
// pointer's place from what comes before the button is let go: a drag that a busy program gets to see all at
// once ended where it began.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDragView.h>

#import "gnustep/runtime/MethodReplacement.h"

@interface GSDragView (TNDragEnds)
- (void)tnPointerIsAt:(NSPoint)place;
@end

namespace {

using Follow = void (*)(id self, SEL command);
Follow nativeFollow = nullptr;

void follow(id self, SEL command) {
    NSEvent *event = [NSApp currentEvent];
    if ([event type] == NSLeftMouseUp) {
        [self tnPointerIsAt:[[event window] convertBaseToScreen:[event locationInWindow]]];
    }
    nativeFollow(self, command);
}

} // namespace

@implementation GSDragView (TNDragEnds)

+ (void)load {
    nativeFollow =
        TNReplaceMethod(self, NSSelectorFromString(@"_updateAndMoveImageToCorrectPosition"), follow);
}

- (void)tnPointerIsAt:(NSPoint)place {
    newPosition = place;
}

@end
