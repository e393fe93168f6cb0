// Missing: browsers that are read from right to left, as of GNUstep GUI 0.29, whose first column is always
// the one at the left.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/start/LayoutDirection.h"

#include <cmath>

/// What a browser has of its own, without saying so.
@interface NSBrowser (TNPrivateMethods)
- (void)_setColumnTitlesNeedDisplay;
@end

@interface NSBrowser (TNDirection)
- (void)tnTurnScroller;
- (void)tnScrollBackwardsBy:(NSScroller *)scroller;
@end

namespace {

using FrameOfColumn = NSRect (*)(id self, SEL command, NSInteger column);
using Move = void (*)(id self, SEL command, id sender);
using Update = void (*)(id self, SEL command);
FrameOfColumn nativeFrameOfColumn = nullptr;
FrameOfColumn nativeTitleFrameOfColumn = nullptr;
Move nativeMoveLeft = nullptr;
Move nativeMoveRight = nullptr;
Move nativeScroll = nullptr;
Update nativeUpdateScroller = nullptr;
Update nativeRedrawTitles = nullptr;

NSRect frameOfColumn(id self, SEL command, NSInteger column) {
    return TNPlaceByDirection(nativeFrameOfColumn(self, command, column), [self bounds]);
}

NSRect titleFrameOfColumn(id self, SEL command, NSInteger column) {
    return TNPlaceByDirection(nativeTitleFrameOfColumn(self, command, column), [self bounds]);
}

/// Left is to the column before or to the one after it.
void moveLeft(id self, SEL command, id sender) {
    (TNReadsFromRightToLeft() ? nativeMoveRight : nativeMoveLeft)(self, command, sender);
}

void moveRight(id self, SEL command, id sender) {
    (TNReadsFromRightToLeft() ? nativeMoveLeft : nativeMoveRight)(self, command, sender);
}

void updateScroller(id self, SEL command) {
    nativeUpdateScroller(self, command);
    if (TNReadsFromRightToLeft()) {
        [self tnTurnScroller];
    }
}

/// The toolkit's begin with the first one, at the left.
void redrawTitles(id self, SEL command) {
    nativeRedrawTitles(self, command);
    if (TNReadsFromRightToLeft()) {
        [self setNeedsDisplay:YES];
    }
}

void scroll(id self, SEL command, id sender) {
    if (TNReadsFromRightToLeft()) {
        [self tnScrollBackwardsBy:sender];
    } else {
        nativeScroll(self, command, sender);
    }
}

} // namespace

@implementation NSBrowser (TNDirection)

+ (void)load {
    nativeFrameOfColumn = TNReplaceMethod(self, @selector(frameOfColumn:), frameOfColumn);
    nativeTitleFrameOfColumn = TNReplaceMethod(self, @selector(titleFrameOfColumn:), titleFrameOfColumn);
    nativeMoveLeft = TNReplaceMethod(self, @selector(moveLeft:), moveLeft);
    nativeMoveRight = TNReplaceMethod(self, @selector(moveRight:), moveRight);
    nativeUpdateScroller = TNReplaceMethod(self, @selector(updateScroller), updateScroller);
    nativeRedrawTitles = TNReplaceMethod(self, @selector(_setColumnTitlesNeedDisplay), redrawTitles);
    nativeScroll = TNReplaceMethod(self, @selector(scrollViaScroller:), scroll);
}

- (void)tnTurnScroller {
    [_horizontalScroller setFloatValue:1 - [_horizontalScroller floatValue]];
}

/// The first column is at its right end.
- (void)tnScrollBackwardsBy:(NSScroller *)scroller {
    switch ([scroller hitPart]) {
    case NSScrollerDecrementLine:
    case NSScrollerDecrementPage:
        [self scrollColumnsRightBy:1];
        break;
    case NSScrollerIncrementLine:
    case NSScrollerIncrementPage:
        [self scrollColumnsLeftBy:1];
        break;
    case NSScrollerKnob:
    case NSScrollerKnobSlot: {
        const double place = 1 - static_cast<double>([scroller floatValue]);
        [self scrollColumnToVisible:std::lround(std::ceil(place * static_cast<double>([self lastColumn])))];
        break;
    }
    default:
        break;
    }
}

@end
