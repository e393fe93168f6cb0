// Wrong: the look of alerts, as of GNUstep GUI 0.29: a small, dimmed icon, a large title over a line across
// the panel, texts and buttons at the very edges, and lines that are as wide as the screen lets them be. Here
// the icon stands where reading begins, the title in bold over the message beside it, with margins all
// around; a message that is too long for the screen scrolls.

#import <AppKit/AppKit.h>

#import "gnustep/panels/PanelLanguages.h"
#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/start/LayoutDirection.h"

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
constexpr CGFloat shareOfScreen = 0.8;
/// What is shown of one at the least, however long the title is.
constexpr CGFloat smallestMessage = 48;

using Size = void (*)(id self, SEL command);
Size nativeSize = nullptr;

/// A view of the panel, by the name of its instance variable, shown or not.
id viewOf(id panel, const char *name) {
    void *found = nullptr;
    object_getInstanceVariable(panel, name, &found);
    return (NSView *)found;
}

/// Nil unless it is shown.
id part(id panel, const char *name) {
    NSView *view = viewOf(panel, name);
    return [view superview] ? view : nil;
}

CGFloat heightOf(NSTextField *field, CGFloat width) {
    const NSRect needed =
        [[field attributedStringValue] boundingRectWithSize:NSMakeSize(width, 1e6)
                                                    options:static_cast<NSStringDrawingOptions>(0)];
    return std::ceil(NSHeight(needed)) + 2;
}

void prepareText(NSTextField *field, NSFont *font) {
    [field setFont:font];
    [field setAlignment:TNLeadingAlignment()];
    [[field cell] setWraps:YES];
    [[field cell] setLineBreakMode:NSLineBreakByWordWrapping];
}

/// The panel's own are blank where they show the Return key, and take its room.
NSArray *prepareButtons(id panel) {
    NSMutableArray *buttons = [NSMutableArray array];
    for (const char *name : {"defButton", "altButton", "othButton"}) {
        if (NSButton *button = part(panel, name)) {
            [button setImagePosition:NSNoImage];
            [buttons addObject:button];
        }
    }
    return buttons;
}

/// A button, which is dimmed while it cannot be pressed; here it can, and nothing happens.
void prepareIcon(NSButton *icon) {
    [icon setEnabled:YES];
    [[icon cell] setHighlightsBy:NSNoCellMask];
    [icon setRefusesFirstResponder:YES];
}

/// From the end of the line; gives the room that they take, their margins included.
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

/// Of the content of a panel that leaves some of the screen free.
CGFloat greatestHeight(NSPanel *panel) {
    NSScreen *screen = [panel screen] ? [panel screen] : [NSScreen mainScreen];
    const NSRect frame = [screen visibleFrame];
    return shareOfScreen * NSHeight([NSWindow contentRectForFrameRect:frame styleMask:[panel styleMask]]);
}

void setContentSize(NSPanel *panel, NSSize size) {
    const NSRect content = NSMakeRect(0, 0, size.width, size.height);
    const NSSize frame = [NSWindow frameRectForContentRect:content styleMask:[panel styleMask]].size;
    [panel setMinSize:frame];
    [panel setMaxSize:frame];
    [panel setContentSize:size];
}

/// As it is, or in a view that scrolls.
void placeMessage(id panel, NSTextField *message, NSRect place, bool scrolls) {
    NSScrollView *scroll = viewOf(panel, "scroll");
    [message retain];
    [scroll setDocumentView:nil];
    [message removeFromSuperview];
    if (scrolls) {
        [scroll setBorderType:NSNoBorder];
        [scroll setDrawsBackground:NO];
        [scroll setFrame:place];
        const CGFloat width = [scroll contentSize].width;
        [message setFrame:NSMakeRect(0, 0, width, heightOf(message, width))];
        [scroll setDocumentView:message];
        [[panel contentView] addSubview:scroll];
    } else {
        [scroll removeFromSuperview];
        [message setFrame:place];
        [[panel contentView] addSubview:message];
    }
    [message release];
}

/// Laid out for reading from left to right, and then placed by the direction.
void size(id self, SEL command) {
    nativeSize(self, command);
    [self setTitle:TNPanelText(@"Alert")];
    NSTextField *title = part(self, "titleField");
    NSTextField *message = part(self, "messageField");
    NSButton *icon = part(self, "icoButton");
    NSArray *buttons = prepareButtons(self);
    prepareText(title, [NSFont boldSystemFontOfSize:14]);
    prepareText(message, [NSFont systemFontOfSize:12]);
    prepareIcon(icon);
    const CGFloat foot = 2 * margin + buttonHeight;
    const CGFloat titleHeight = title ? heightOf(title, textWidth) : 0;
    const CGFloat between = title && message ? gap : 0;
    const CGFloat wanted = message ? heightOf(message, textWidth) : 0;
    const CGFloat room = greatestHeight(self) - foot - titleHeight - between - margin;
    const CGFloat messageHeight = std::min(wanted, std::max(smallestMessage, room));
    const CGFloat texts = std::max(iconSide, titleHeight + between + messageHeight);
    const CGFloat width = std::max(textLeft + textWidth + margin, placeButtons(buttons, 0));
    setContentSize(self, NSMakeSize(width, foot + texts + margin));
    placeButtons(buttons, width);
    CGFloat top = foot + texts;
    [icon setFrame:NSMakeRect(margin, top - iconSide, iconSide, iconSide)];
    [title setFrame:NSMakeRect(textLeft, top - titleHeight, textWidth, titleHeight)];
    top -= titleHeight + between;
    if (message) {
        const NSRect place = NSMakeRect(textLeft, top - messageHeight, textWidth, messageHeight);
        placeMessage(self, message, place, messageHeight < wanted);
    }
    NSView *content = [self contentView];
    for (NSView *view in [content subviews]) {
        [view setFrame:TNPlaceByDirection([view frame], [content bounds])];
        [view setHidden:[view isKindOfClass:[NSBox class]]];
    }
    [content setNeedsDisplay:YES];
}

} // namespace

@interface NSAlert (TNAlertPanels)
@end

@implementation NSAlert (TNAlertPanels)

+ (void)load {
    nativeSize = TNReplaceMethod(NSClassFromString(@"GSAlertPanel"), @selector(sizePanelToFit), size);
}

@end
