// Wrong: the frame that a window keeps from one start to the next, as of GNUstep GUI 0.29, which takes what
// the window manager drew around it for a part of it: a window that was on the screen before the window
// manager was known came up elsewhere and smaller at the next start. Here what is inside is kept.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using SavedFrame = NSString *(*)(id self, SEL command);
using SetFrame = void (*)(id self, SEL command, NSString *text);
SavedFrame nativeSavedFrame = nullptr;
SetFrame nativeSetFrame = nullptr;

/// Behind the numbers, so that a frame that was kept without it is still one.
NSString *const mark = @"content";

/// The text with another rectangle in the place of its first four numbers; the rest is that of the screen.
NSString *withRect(NSString *text, NSRect rect) {
    NSArray *numbers = [[text componentsSeparatedByCharactersInSet:[NSCharacterSet whitespaceCharacterSet]]
        filteredArrayUsingPredicate:[NSPredicate predicateWithFormat:@"length > 0"]];
    NSMutableArray *changed = [NSMutableArray array];
    for (const CGFloat number : {NSMinX(rect), NSMinY(rect), NSWidth(rect), NSHeight(rect)}) {
        [changed addObject:[NSString stringWithFormat:@"%d", static_cast<int>(number)]];
    }
    if ([numbers count] > 4) {
        [changed addObjectsFromArray:[numbers subarrayWithRange:NSMakeRange(4, [numbers count] - 4)]];
    }
    return [changed componentsJoinedByString:@" "];
}

/// A menu in the window comes later, and makes room for itself below: the upper edge is kept, and the height
/// without it.
NSString *savedFrame(id self, SEL command) {
    NSRect content = [self contentRectForFrameRect:[self frame]];
    const NSRect inside = [NSWindow contentRectForFrameRect:[self frame] styleMask:[self styleMask]];
    content.origin.y += NSMaxY(inside) - NSMaxY(content);
    return [NSString stringWithFormat:@"%@ %@", withRect(nativeSavedFrame(self, command), content), mark];
}

void setFrame(id self, SEL command, NSString *text) {
    if (![text hasSuffix:mark]) {
        nativeSetFrame(self, command, text);
        return;
    }
    NSScanner *scanner = [NSScanner scannerWithString:text];
    int numbers[4] = {};
    for (int &number : numbers) {
        [scanner scanInt:&number];
    }
    const NSRect content = NSMakeRect(numbers[0], numbers[1], numbers[2], numbers[3]);
    const NSRect frame = [NSWindow frameRectForContentRect:content styleMask:[self styleMask]];
    NSString *plain = [text substringToIndex:[text length] - [mark length]];
    nativeSetFrame(self, command, withRect(plain, frame));
}

} // namespace

@interface NSWindow (TNSavedFrames)
@end

@implementation NSWindow (TNSavedFrames)

+ (void)load {
    nativeSavedFrame = TNReplaceMethod(self, @selector(stringWithSavedFrame), savedFrame);
    nativeSetFrame = TNReplaceMethod(self, @selector(setFrameFromString:), setFrame);
}

@end
