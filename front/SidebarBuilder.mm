#import "front/SidebarBuilder.h"

#import "front/ControlMaking.h"
#import "front/SettingsOutlets.h"
#import "front/SettingsViewController.h"

#include "ui/WindowLayout.h"

/// The sidebar's ground, a shade apart from that of the pages.
@interface SidebarView : NSView
@end

@implementation SidebarView

- (void)drawRect:(NSRect)rect {
    [[NSColor windowBackgroundColor] set];
    NSRectFill(rect);
}

@end

namespace tarnwick {
namespace {

constexpr CGFloat inset = 12;
constexpr CGFloat innerWidth = sidebarWidth - 2 * inset;
constexpr CGFloat topMargin = 20;
constexpr CGFloat pageButtonHeight = 36;
constexpr CGFloat pageButtonPitch = 40;
constexpr CGFloat iconSize = 20;
constexpr CGFloat iconPadding = 8;

SEL selectorOf(Page page) {
    switch (page) {
    case Page::createNewFile:
        return @selector(createNewFilePressed:);
    case Page::copyFilesTo:
        return @selector(copyFilesToPressed:);
    case Page::commonPath:
        return @selector(commonPathPressed:);
    case Page::customIcon:
        return @selector(customIconFolder:);
    case Page::others:
        return @selector(otherOptionPressed:);
    case Page::moreApps:
        break;
    }
    return @selector(moreAppPressed:);
}

/// The icon with room at its sides: a borderless button has none of its own.
NSImage *paddedIcon(NSImage *icon) {
    NSImage *padded =
        [[[NSImage alloc] initWithSize:NSMakeSize(iconSize + 2 * iconPadding, iconSize)] autorelease];
    [padded lockFocus];
    [icon drawInRect:NSMakeRect(iconPadding, 0, iconSize, iconSize)
            fromRect:NSZeroRect
           operation:NSCompositingOperationSourceOver
            fraction:1];
    [padded unlockFocus];
    return padded;
}

NSButton *makePageButton(const PageLayout &layout, ::SettingsViewController *controller) {
    NSButton *button = [[[NSButton alloc] init] autorelease];
    [button setBordered:NO];
    [button setWantsLayer:YES];
    [[button layer] setCornerRadius:6];
    [button setAlignment:NSTextAlignmentLeft];
    [button setTitle:localizedText(layout.title)];
    [button setImage:paddedIcon(resourceImage(layout.image))];
    [button setImagePosition:NSImageLeft];
    [button setTarget:controller];
    [button setAction:selectorOf(layout.page)];
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

NSView *makeSidebar(CGFloat height, ::SettingsViewController *controller, SettingsOutlets *outlets) {
    NSView *sidebar =
        [[[SidebarView alloc] initWithFrame:NSMakeRect(0, 0, sidebarWidth, height)] autorelease];
    [sidebar setAutoresizingMask:NSViewHeightSizable];

    CGFloat top = height - topMargin;
    for (const auto &layout : pageLayouts()) {
        NSButton *button = makePageButton(layout, controller);
        [button setFrame:NSMakeRect(inset, top - pageButtonHeight, innerWidth, pageButtonHeight)];
        [button setAutoresizingMask:NSViewMinYMargin];
        [sidebar addSubview:button];
        [outlets addPageButton:button];
        top -= pageButtonPitch;
    }

    NSFont *smallFont = [NSFont systemFontOfSize:11];
    NSTextField *version = makeLabel(@"", smallFont, secondaryTextColor());
    [version setAlignment:NSTextAlignmentCenter];
    NSButton *help = makePushButton(localizedText("Help"), controller, @selector(initializeClick:));
    NSTextField *tip =
        makeLabel(localizedText("Does the menu not show a change? Restarting the Finder helps."), smallFont,
            secondaryTextColor(), true);
    [tip setAlignment:NSTextAlignmentCenter];
    NSButton *restart =
        makePushButton(localizedText("Restart Finder"), controller, @selector(restartFinderClick:));

    CGFloat bottom = addAtFoot(sidebar, version, 14, 16);
    bottom = addAtFoot(sidebar, help, bottom + 8, 28);
    bottom = addAtFoot(sidebar, restart, bottom + 6, 28);
    addAtFoot(sidebar, tip, bottom + 6, 44);

    [outlets setVersion:version];
    [outlets setHelpButton:help];
    [outlets setRestartFinderButton:restart];
    [outlets setTipOfkillFinder:tip];
    return sidebar;
}

} // namespace tarnwick
