#import "front/SidebarBuilder.h"

#import "front/Colors.h"
#import "front/ControlMaking.h"
#import "front/HelpButton.h"
#import "front/LayoutDirection.h"
#import "front/Selectors.h"
#import "front/SettingsViewController+Actions.h"
#import "front/SettingsViewController+System.h"

#include "ui/WindowLayout.h"

/// The sidebar's ground: the window's colour, a shade nearer to that of the text.
@interface SidebarView : NSView
@end

@implementation SidebarView

- (void)drawRect:(NSRect)rect {
    constexpr CGFloat shade = 0.04;
    // What is to be drawn may reach beyond a view that does not clip, as none does from macOS 14 on.
    tarnwick::fillWithShade([self bounds], shade);
}

@end

namespace tarnwick {
namespace {

constexpr CGFloat inset = 12;
constexpr CGFloat innerWidth = sidebarWidth - 2 * inset;
constexpr CGFloat topMargin = 20;
constexpr CGFloat pageButtonHeight = 36;
constexpr CGFloat pageButtonPitch = 40;
constexpr CGFloat iconWidth = 36;
constexpr CGFloat iconHeight = 20;

/// With room at its sides. It takes the colour of the button's title, which stands out from every ground that
/// the button has.
NSImage *pageIcon(std::string_view name) {
    NSImage *icon = resourceImage(name);
    [icon setSize:NSMakeSize(iconWidth, iconHeight)];
    [icon setTemplate:YES];
    return icon;
}

NSButton *makePageButton(Page page, SettingsViewController *controller) {
    const auto &layout = layoutOf(page);
    NSButton *button = [[[NSButton alloc] init] autorelease];
    [button setBordered:NO];
    [button setWantsLayer:YES];
    [[button layer] setCornerRadius:6];
    [button setAlignment:leadingAlignment()];
    [button setTitle:localizedText(layout.title)];
    [button setImage:pageIcon(layout.image)];
    [button setImagePosition:isRightToLeft() ? NSImageRight : NSImageLeft];
    [button setTarget:controller];
    [button setAction:actionOf(page)];
    [button setToolTip:localizedText(layout.explanation)];
    return button;
}

/// Places a view above what is there, at the foot of the sidebar, and gives its upper edge.
CGFloat addAtFoot(NSView *sidebar, NSView *view, CGFloat bottom, CGFloat height) {
    [view setFrame:NSMakeRect(inset, bottom, innerWidth, height)];
    [view setAutoresizingMask:NSViewMaxYMargin];
    [sidebar addSubview:view];
    return bottom + height;
}

} // namespace

NSView *makeSidebar(CGFloat height, SettingsViewController *controller) {
    NSView *column = [[[SidebarView alloc] initWithFrame:NSMakeRect(0, 0, sidebarWidth, height)] autorelease];
    [column setAutoresizingMask:NSViewHeightSizable];

    CGFloat top = height - topMargin;
    for (const auto page : allPages) {
        NSButton *button = makePageButton(page, controller);
        [button setFrame:NSMakeRect(inset, top - pageButtonHeight, innerWidth, pageButtonHeight)];
        [button setAutoresizingMask:NSViewMinYMargin];
        [column addSubview:button];
        [controller setButton:button ofPage:page];
        top -= pageButtonPitch;
    }

    NSFont *smallFont = [NSFont systemFontOfSize:11];
    NSTextField *version = makeLabel(@"", smallFont, secondaryTextColor());
    [version setAlignment:NSTextAlignmentCenter];
    NSButton *help = [[[HelpButton alloc] init] autorelease];
    preparePushButton(help, localizedText(sidebar::help), controller, @selector(initializeClick:));
    [help setToolTip:localizedText("Restarting the Finder")];
    [help setBordered:NO];
    NSTextField *tip = makeLabel(localizedText(sidebar::tip), smallFont, secondaryTextColor(), true);
    [tip setAlignment:NSTextAlignmentCenter];
    NSButton *restart =
        makePushButton(localizedText(sidebar::restart), controller, @selector(restartFinderClick:));

    NSButton *preview = makePushButton(localizedText(sidebar::preview), controller, @selector(previewMenu:));
    [preview setToolTip:localizedText(sidebar::previewToolTip)];

    CGFloat bottom = addAtFoot(column, version, 14, 16);
    bottom = addAtFoot(column, help, bottom + 8, 28);
    bottom = addAtFoot(column, preview, bottom + 8, 28);
    // The tip stands on its own as long as there is no button to it, which is most of the time.
    bottom = addAtFoot(column, tip, bottom + 10, 44);
    addAtFoot(column, restart, bottom + 6, 28);

    [controller setVersion:version];
    [controller setHelpButton:help];
    [controller setRestartFinderButton:restart];
    [controller setTipOfkillFinder:tip];
    [controller setPreviewButton:preview];
    return column;
}

} // namespace tarnwick
