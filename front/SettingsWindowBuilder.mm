#import "front/SettingsWindowBuilder.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"
#import "front/MoreAppsPage.h"
#import "front/PageViewBuilder.h"
#import "front/SettingsViewController.h"
#import "front/SidebarBuilder.h"

#include "ui/WindowLayout.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

/// `neededWidth` becomes that of the page whose texts take most room, at least what it was.
NSTabView *makePages(NSRect frame, SettingsViewController *controller, CGFloat &neededWidth) {
    NSTabView *tabView = [[[NSTabView alloc] initWithFrame:frame] autorelease];
    [tabView setTabViewType:NSNoTabsNoBorder];
    [tabView setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    for (const auto page : allPages) {
        const auto &layout = layoutOf(page);
        NSTabViewItem *item =
            [[[NSTabViewItem alloc] initWithIdentifier:toNSString(layout.title)] autorelease];
        [item setView:layout.category ? makeRulePage(layout, frame.size, controller, neededWidth)
                                      : makeMoreAppsPage(layout, frame.size, controller)];
        [tabView addTabViewItem:item];
    }
    return tabView;
}

/// The line between the sidebar and the pages.
NSView *makeSeparator(CGFloat height) {
    NSBox *line = [[[NSBox alloc] initWithFrame:NSMakeRect(sidebarWidth, 0, 1, height)] autorelease];
    [line setBoxType:NSBoxSeparator];
    [line setAutoresizingMask:NSViewHeightSizable];
    return line;
}

} // namespace

NSWindow *newSettingsWindow(SettingsViewController *controller) {
    const NSRect frame = NSMakeRect(0, 0, windowWidth, windowHeight);
    NSWindow *window =
        [[NSWindow alloc] initWithContentRect:frame
                                    styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                                              NSWindowStyleMaskMiniaturizable | NSWindowStyleMaskResizable
                                      backing:NSBackingStoreBuffered
                                        defer:YES];
    [window setReleasedWhenClosed:NO];
    [window setTitle:localizedText("Tarnwick")];

    NSView *content = [[[NSView alloc] initWithFrame:frame] autorelease];
    [content setWantsLayer:YES];
    [content addSubview:makeSidebar(windowHeight, controller)];
    [content addSubview:makeSeparator(windowHeight)];
    const CGFloat pagesLeft = sidebarWidth + 1;
    CGFloat pagesWidth = windowMinimumWidth - pagesLeft;
    NSTabView *pages =
        makePages(NSMakeRect(pagesLeft, 0, windowWidth - pagesLeft, windowHeight), controller, pagesWidth);
    [content addSubview:pages];
    [controller setTabView:pages];

    [window setContentView:content];
    // Some languages need more room than others.
    const CGFloat minimumWidth = pagesLeft + std::ceil(pagesWidth);
    [window setContentMinSize:NSMakeSize(minimumWidth, windowMinimumHeight)];
    [window setContentSize:NSMakeSize(std::max<CGFloat>(windowWidth, minimumWidth), windowHeight)];
    [controller setView:content];
    [window center];
    [window setFrameAutosaveName:@"Settings"];
    return window;
}

} // namespace tarnwick
