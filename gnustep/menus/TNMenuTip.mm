// Missing: the tool tips of menu items, as of GNUstep GUI 0.29, which keeps their texts and shows none.

#import "gnustep/menus/TNMenuTip.h"

#include <algorithm>

namespace {

constexpr CGFloat margin = 4;
constexpr CGFloat mostWidth = 320;
constexpr CGFloat pointerHeight = 20;

} // namespace

@implementation TNMenuTip

+ (TNMenuTip *)showText:(NSString *)text at:(NSPoint)pointer {
    NSTextField *field = [[[NSTextField alloc] init] autorelease];
    [field setEditable:NO];
    [field setBordered:YES];
    [field setDrawsBackground:YES];
    [field setBackgroundColor:[NSColor toolTipColor]];
    [field setTextColor:[NSColor toolTipTextColor]];
    [field setFont:[NSFont toolTipsFontOfSize:0]];
    [[field cell] setWraps:YES];
    [field setStringValue:text];
    const NSSize size = [[field cell] cellSizeForBounds:NSMakeRect(0, 0, mostWidth, 1000)];
    const NSRect screen = [[NSScreen mainScreen] visibleFrame];
    const CGFloat width = size.width + margin;
    const CGFloat left = std::min(pointer.x + margin, NSMaxX(screen) - width);
    const NSRect frame = NSMakeRect(left, pointer.y - pointerHeight - size.height, width, size.height);
    TNMenuTip *tip = [[[TNMenuTip alloc] initWithContentRect:frame
                                                   styleMask:NSWindowStyleMaskBorderless
                                                     backing:NSBackingStoreBuffered
                                                       defer:YES] autorelease];
    [tip setReleasedWhenClosed:NO];
    [tip setExcludedFromWindowsMenu:YES];
    [tip setLevel:NSPopUpMenuWindowLevel];
    [field setFrame:NSMakeRect(0, 0, NSWidth(frame), NSHeight(frame))];
    [tip setContentView:field];
    [tip orderFrontRegardless];
    [tip display];
    return tip;
}

- (BOOL)canBecomeKeyWindow {
    return NO;
}

@end
