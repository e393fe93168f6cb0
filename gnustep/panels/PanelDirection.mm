// Missing: open and save panels that are read from right to left, as of GNUstep GUI 0.29, which places what
// is in them, and the label of a field, for reading from left to right alone.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/start/LayoutDirection.h"

/// What these have of their own, without saying so.
@interface NSSavePanel (TNPrivateBuilding)
- (id)_initWithoutGModel;
@end

@interface NSCell (TNPrivateDrawing)
- (void)_drawBorderAndBackgroundWithFrame:(NSRect)frame inView:(NSView *)view;
@end

@interface NSSavePanel (TNDirection)
- (void)tnTurnAround;
@end

@interface NSFormCell (TNDirection)
- (NSRect)tnPlaceOfTitle:(NSRect)frame;
- (NSRect)tnPlaceOfField:(NSRect)frame;
- (void)tnDrawTitleAndField:(NSRect)frame inView:(NSView *)view;
- (void)tnDrawGroundOfField:(NSRect)frame inView:(NSView *)view;
- (void)tnResetCursorOfField:(NSRect)frame inView:(NSView *)view;
@end

namespace {

using Build = id (*)(id self, SEL command);
using DrawingRect = NSRect (*)(id self, SEL command, NSRect bounds);
Build nativeBuild = nullptr;
DrawingRect nativeDrawingRect = nullptr;

id build(id self, SEL command) {
    id panel = nativeBuild(self, command);
    if (TNReadsFromRightToLeft()) {
        [panel tnTurnAround];
    }
    return panel;
}

/// What keeps its distance from the one side keeps it from the other.
NSUInteger turned(NSUInteger autoresizing) {
    const bool keepsToTheLeft = (autoresizing & (NSViewMinXMargin | NSViewWidthSizable)) == 0;
    return (autoresizing & ~static_cast<NSUInteger>(NSViewMinXMargin)) |
           (keepsToTheLeft ? NSViewMinXMargin : 0);
}

void turnAroundWhatIsIn(NSView *view) {
    for (NSView *inner in [view subviews]) {
        [inner setFrame:TNPlaceByDirection([inner frame], [view bounds])];
        [inner setAutoresizingMask:turned([inner autoresizingMask])];
    }
}

NSRect drawingRect(id self, SEL command, NSRect bounds) {
    return TNPlaceByDirection(nativeDrawingRect(self, command, bounds), bounds);
}

void draw(id self, SEL, NSRect frame, NSView *view) {
    [self tnDrawTitleAndField:frame inView:view];
}

void drawGround(id self, SEL, NSRect frame, NSView *view) {
    [self tnDrawGroundOfField:frame inView:view];
}

void resetCursor(id self, SEL, NSRect frame, NSView *view) {
    [self tnResetCursorOfField:frame inView:view];
}

} // namespace

@implementation NSSavePanel (TNDirection)

+ (void)load {
    nativeBuild = TNReplaceMethod(self, @selector(_initWithoutGModel), build);
}

- (void)tnTurnAround {
    turnAroundWhatIsIn(_topView);
    turnAroundWhatIsIn(_bottomView);
    [_titleField setAlignment:NSRightTextAlignment];
    [_form setTextAlignment:NSRightTextAlignment];
}

@end

@implementation NSFormCell (TNDirection)

+ (void)load {
    nativeDrawingRect = TNReplaceMethod(self, @selector(drawingRectForBounds:), drawingRect);
    TNReplaceMethod(self, @selector(drawWithFrame:inView:), draw);
    TNReplaceMethod(self, @selector(_drawBorderAndBackgroundWithFrame:inView:), drawGround);
    TNReplaceMethod(self, @selector(resetCursorRect:inView:), resetCursor);
}

- (NSRect)tnPlaceOfTitle:(NSRect)frame {
    return TNPlaceByDirection(
        NSMakeRect(NSMinX(frame), NSMinY(frame), [self titleWidth], NSHeight(frame)), frame);
}

- (NSRect)tnPlaceOfField:(NSRect)frame {
    constexpr CGFloat gap = 3;
    const CGFloat before = [self titleWidth] + gap;
    return TNPlaceByDirection(
        NSMakeRect(NSMinX(frame) + before, NSMinY(frame), NSWidth(frame) - before, NSHeight(frame)), frame);
}

- (void)tnDrawTitleAndField:(NSRect)frame inView:(NSView *)view {
    [_titleCell drawWithFrame:[self tnPlaceOfTitle:frame] inView:view];
    [super drawWithFrame:frame inView:view];
}

- (void)tnDrawGroundOfField:(NSRect)frame inView:(NSView *)view {
    [super _drawBorderAndBackgroundWithFrame:[self tnPlaceOfField:frame] inView:view];
    [[NSColor textBackgroundColor] set];
    NSRectFill([self drawingRectForBounds:frame]);
}

- (void)tnResetCursorOfField:(NSRect)frame inView:(NSView *)view {
    [super resetCursorRect:[self tnPlaceOfField:frame] inView:view];
}

@end
