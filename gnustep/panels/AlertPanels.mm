// Wrong: the look of alerts, as of GNUstep GUI 0.29: a small, dimmed icon, a large title over a line across
// the panel, texts and buttons at the very edges, and lines that are as wide as the screen lets them be. Here
// the icon stands at the left, the title in bold over the message beside it, with margins all around.

#import <AppKit/AppKit.h>

#import "gnustep/panels/PanelLanguages.h"
#import "gnustep/runtime/MethodReplacement.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr CGFloat margin = 20;
constexpr CGFloat gap = 10;
constexpr CGFloat iconSide = 64;
constexpr CGFloat textWidth = 380;
constexpr CGFloat buttonHeight = 28;
constexpr CGFloat smallestButtonWidth = 84;
constexpr CGFloat titlePadding = 32;
constexpr CGFloat textLeft = 2 * margin + iconSide;

using Size = void (*)(id self, SEL command);
Size nativeSize = nullptr;

/// A view of the panel, by the name of its instance variable; nil unless it is shown.
id part(id panel, const char *name) {
    void *found = nullptr;
    object_getInstanceVariable(panel, name, &found);
    NSView *view = (NSView *)found;
    return [view superview] ? view : nil;
}

CGFloat heightOf(NSTextField *field) {
    const NSRect needed =
        [[field attributedStringValue] boundingRectWithSize:NSMakeSize(textWidth, 1e6)
                                                    options:static_cast<NSStringDrawingOptions>(0)];
    return std::ceil(NSHeight(needed)) + 2;
}

void prepareText(NSTextField *field, NSFont *font) {
    [field setFont:font];
    [field setAlignment:NSLeftTextAlignment];
    [[field cell] setWraps:YES];
    [[field cell] setLineBreakMode:NSLineBreakByWordWrapping];
}

/// From the right; gives the room that they take, their margins included.
CGFloat placeButtons(NSArray *buttons, CGFloat width) {
    CGFloat right = width - margin;
    for (NSButton *button in buttons) {
        const CGFloat title = std::ceil([[[button cell] attributedTitle] size].width) + titlePadding;
        const CGFloat wide = std::max(smallestButtonWidth, title);
        right -= wide;
        [button setFrame:NSMakeRect(right, margin, wide, buttonHeight)];
        right -= gap;
    }
    return width - right - gap + margin;
}

/// A message that is too long for the screen keeps the toolkit's layout, in which it scrolls.
void size(id self, SEL command) {
    nativeSize(self, command);
    [self setTitle:TNPanelText(@"Alert")];
    NSTextField *title = part(self, "titleField");
    NSTextField *message = part(self, "messageField");
    NSButton *icon = part(self, "icoButton");
    if (part(self, "scroll")) {
        return;
    }
    NSMutableArray *buttons = [NSMutableArray array];
    for (const char *name : {"defButton", "altButton", "othButton"}) {
        if (NSButton *button = part(self, name)) {
            // That of the Return key, which is blank here, and takes its room.
            [button setImagePosition:NSNoImage];
            [buttons addObject:button];
        }
    }
    prepareText(title, [NSFont boldSystemFontOfSize:14]);
    prepareText(message, [NSFont systemFontOfSize:12]);
    const CGFloat titleHeight = title ? heightOf(title) : 0;
    const CGFloat messageHeight = message ? heightOf(message) : 0;
    const CGFloat between = title && message ? gap : 0;
    const CGFloat texts = std::max(iconSide, titleHeight + between + messageHeight);
    const CGFloat foot = 2 * margin + buttonHeight;
    const CGFloat width = std::max(textLeft + textWidth + margin, placeButtons(buttons, 0));
    const NSSize content = NSMakeSize(width, foot + texts + margin);
    const NSSize frame = [NSWindow frameRectForContentRect:NSMakeRect(0, 0, content.width, content.height)
                                                 styleMask:[self styleMask]]
                             .size;
    [self setMinSize:frame];
    [self setMaxSize:frame];
    [self setContentSize:content];
    placeButtons(buttons, width);
    CGFloat top = content.height - margin;
    // A button, which is dimmed while it cannot be pressed; here it can, and nothing happens.
    [icon setEnabled:YES];
    [[icon cell] setHighlightsBy:NSNoCellMask];
    [icon setRefusesFirstResponder:YES];
    [icon setFrame:NSMakeRect(margin, top - iconSide, iconSide, iconSide)];
    [title setFrame:NSMakeRect(textLeft, top - titleHeight, textWidth, titleHeight)];
    top -= titleHeight + between;
    [message setFrame:NSMakeRect(textLeft, top - messageHeight, textWidth, messageHeight)];
    for (NSView *view in [[self contentView] subviews]) {
        if ([view isKindOfClass:[NSBox class]]) {
            [view setHidden:YES];
        }
    }
    [[self contentView] setNeedsDisplay:YES];
}

} // namespace

@interface NSAlert (TNAlertPanels)
@end

@implementation NSAlert (TNAlertPanels)

+ (void)load {
    nativeSize = TNReplaceMethod(NSClassFromString(@"GSAlertPanel"), @selector(sizePanelToFit), size);
}

@end
