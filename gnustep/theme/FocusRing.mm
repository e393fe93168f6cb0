// Wrong: the focus ring, as of GNUstep GUI 0.29, which has each control draw one within its bounds and leaves
// out tables and fields. Here it is drawn around the control, over whatever is there, as soon as a part of
// the window has been drawn that it crosses.

#import "TNTheme.h"

#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/runtime/RunLoopModes.h"
#import "gnustep/views/ViewAttachments.h"

NSString *const TNWindowDidMoveFocus = @"TNWindowDidMoveFocus";

@interface NSWindow (TNFocusRing)
- (void)tnFollowFocus;
- (void)tnFollowFocusSoon;
@end

namespace {

constexpr CGFloat ringWidth = 2;
NSString *const shownRing = @"focus ring";

/// What the ring is around, in the coordinates of the view, and with which corners.
struct Ring {
    NSView *view = nil;
    NSRect inner = NSZeroRect;
    CGFloat radius = 0;
};

/// A line of the ground remains between a control and its ring.
Ring ringAround(NSView *view, NSRect rect, CGFloat radius) {
    constexpr CGFloat gap = 1;
    return {view, NSInsetRect(rect, -gap, -gap), radius + gap};
}

/// A check box's is around its box.
Ring ringOfButton(NSButton *button) {
    constexpr CGFloat boxSize = 14;
    constexpr CGFloat boxRadius = 3.5;
    const NSRect bounds = [button bounds];
    if (!TNIsCheckBox([button cell])) {
        return ringAround(button, NSInsetRect(bounds, 0, [button isBordered] ? 1 : 0), TNThemeButtonRadius);
    }
    CGFloat left = NSMinX(bounds) + 1;
    if ([[button title] length] == 0) {
        left = NSMidX(bounds) - boxSize / 2;
    } else if ([button imagePosition] == NSImageRight) {
        left = NSMaxX(bounds) - 1 - boxSize;
    }
    return ringAround(button, NSMakeRect(left, NSMidY(bounds) - boxSize / 2, boxSize, boxSize), boxRadius);
}

/// Without a view when there is nothing to be seen.
Ring ringOf(NSWindow *window) {
    constexpr CGFloat fieldRadius = 1;
    NSResponder *responder = [window firstResponder];
    Ring ring;
    if (NSTextField *field = TNEditedFieldOf(window)) {
        ring = {field, TNFrameOfEditedField(field), fieldRadius};
    } else if ([responder isKindOfClass:[NSTableView class]]) {
        NSView *scrollView = [(NSTableView *)responder enclosingScrollView];
        ring = {scrollView, [scrollView bounds], 0};
    } else if ([responder isKindOfClass:[NSButton class]]) {
        ring = ringOfButton((NSButton *)responder);
    }
    const bool isSeen =
        [window isKeyWindow] && [ring.view window] == window && ![ring.view isHiddenOrHasHiddenAncestor];
    return isSeen ? ring : Ring();
}

/// In the window.
NSRect placeOf(const Ring &ring) {
    return ring.view ? [ring.view convertRect:NSInsetRect(ring.inner, -ringWidth, -ringWidth) toView:nil]
                     : NSZeroRect;
}

void draw(const Ring &ring, NSView *canvas) {
    if (NSClipView *clip = (NSClipView *)[[ring.view enclosingScrollView] contentView];
        [ring.view isDescendantOf:clip]) {
        NSRectClip([canvas convertRect:[clip bounds] fromView:clip]);
    }
    const NSRect inner = [canvas convertRect:ring.inner fromView:ring.view];
    if ([ring.view isKindOfClass:[NSTextField class]]) {
        TNDrawBoxOfEditedField((NSTextField *)ring.view, inner);
    }
    const NSRect middle = NSInsetRect(inner, -ringWidth / 2, -ringWidth / 2);
    const CGFloat radius = ring.radius + ringWidth / 2;
    NSBezierPath *path = ring.radius == 0
                             ? [NSBezierPath bezierPathWithRect:middle]
                             : [NSBezierPath bezierPathWithRoundedRect:middle xRadius:radius yRadius:radius];
    [path setLineWidth:ringWidth];
    [TNThemeCurrentColors()->accent set];
    [path stroke];
}

void needDisplay(NSView *frame, NSRect place) {
    if (!NSIsEmptyRect(place)) {
        [frame setNeedsDisplayInRect:NSIntegralRect([frame convertRect:place fromView:nil])];
    }
}

/// A part of the view has just been drawn.
void drawOver(NSView *view, NSRect rect) {
    const Ring ring = ringOf([view window]);
    const NSRect drawn = NSIntersectionRect(rect, [view visibleRect]);
    if (ring.view && NSIntersectsRect(drawn, [view convertRect:placeOf(ring) fromView:nil])) {
        [view lockFocusInRect:drawn];
        draw(ring, view);
        [view unlockFocus];
    }
}

using Display = void (*)(NSView *self, SEL command, NSRect rect, NSGraphicsContext *context);
Display nativeDisplay = nullptr;
int depth = 0;

/// Views within views are drawn by this method too: the ring comes after all of them, and before anything of
/// it is to be seen.
void display(NSView *self, SEL command, NSRect rect, NSGraphicsContext *context) {
    NSWindow *window = [self window];
    const bool isOutermost =
        depth == 0 && window && [self canDraw] && (!context || context == [window graphicsContext]);
    if (!isOutermost) {
        nativeDisplay(self, command, rect, context);
        return;
    }
    [window disableFlushWindow];
    ++depth;
    @try {
        nativeDisplay(self, command, rect, context);
        drawOver(self, rect);
    } @finally {
        --depth;
        [window enableFlushWindow];
    }
    [window flushWindowIfNeeded];
    [window tnFollowFocusSoon];
}

using MakeFirst = BOOL (*)(NSWindow *self, SEL command, NSResponder *responder);
MakeFirst nativeMakeFirst = nullptr;

BOOL makeFirst(NSWindow *self, SEL command, NSResponder *responder) {
    const BOOL isFirst = nativeMakeFirst(self, command, responder);
    [self tnFollowFocus];
    [[NSNotificationCenter defaultCenter] postNotificationName:TNWindowDidMoveFocus object:self];
    return isFirst;
}

using Change = void (*)(NSWindow *self, SEL command);
Change nativeBecomeKey = nullptr;
Change nativeResignKey = nullptr;

void becomeKey(NSWindow *self, SEL command) {
    nativeBecomeKey(self, command);
    [self tnFollowFocus];
}

void resignKey(NSWindow *self, SEL command) {
    nativeResignKey(self, command);
    [self tnFollowFocus];
}

} // namespace

@implementation NSWindow (TNFocusRing)

+ (void)load {
    nativeMakeFirst = TNReplaceMethod(self, @selector(makeFirstResponder:), makeFirst);
    nativeBecomeKey = TNReplaceMethod(self, @selector(becomeKeyWindow), becomeKey);
    nativeResignKey = TNReplaceMethod(self, @selector(resignKeyWindow), resignKey);
}

- (NSRect)tnShownRing {
    return [TNAttachment([[self contentView] superview], shownRing) rectValue];
}

/// Has the places drawn anew where the ring was and where it is now. One without round corners, which looks
/// the same when it is drawn twice, comes over what is there: a whole table is much to draw.
- (void)tnFollowFocus {
    NSView *frame = [[self contentView] superview];
    const NSRect before = [self tnShownRing];
    const Ring ring = ringOf(self);
    const NSRect now = placeOf(ring);
    if (!frame || NSEqualRects(before, now)) {
        return;
    }
    TNSetAttachment(frame, shownRing, [NSValue valueWithRect:now]);
    needDisplay(frame, before);
    if (ring.radius == 0 && [frame canDraw]) {
        drawOver(frame, [frame convertRect:now fromView:nil]);
        [self flushWindow];
    } else {
        needDisplay(frame, now);
    }
}

/// What has the keyboard may have moved, or gone.
- (void)tnFollowFocusSoon {
    if (!NSEqualRects([self tnShownRing], placeOf(ringOf(self)))) {
        [self performSelector:@selector(tnFollowFocus) withObject:nil afterDelay:0 inModes:TNWorkingModes()];
    }
}

@end

@interface NSView (TNFocusRing)
@end

@implementation NSView (TNFocusRing)

+ (void)load {
    nativeDisplay = TNReplaceMethod(self, @selector(displayRectIgnoringOpacity:inContext:), display);
}

@end
