#import "front/SettingsWindowBuilder.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"
#import "front/LayoutDirection.h"
#import "front/MoreAppsPage.h"
#import "front/NoticeBar.h"
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
    // The window's own colour is behind it.
    [tabView setDrawsBackground:NO];
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

NSView *makeSettingsView(SettingsViewController *controller, CGFloat &minimumWidth) {
    const CGFloat pagesLeft = sidebarWidth + 1;
    NSView *view = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, windowWidth, windowHeight)] autorelease];
    [view setWantsLayer:YES];
    [view addSubview:makeSidebar(windowHeight, controller)];
    [view addSubview:makeSeparator(windowHeight)];
    CGFloat pagesWidth = windowMinimumWidth - pagesLeft;
    NSTabView *pages =
        makePages(NSMakeRect(pagesLeft, 0, windowWidth - pagesLeft, windowHeight), controller, pagesWidth);
    [view addSubview:pages];
    [view addSubview:[[[NoticeBar alloc] initAbove:pages controller:controller] autorelease]];
    mirrorIfRightToLeft(view);
    [controller setTabView:pages];
    // Some languages need more room than others.
    minimumWidth = pagesLeft + std::ceil(pagesWidth);
    return view;
}

NSWindow *newSettingsWindow(SettingsViewController *controller) {
    NSView *view = [controller view];
    NSWindow *window =
        [[NSWindow alloc] initWithContentRect:[view frame]
                                    styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                                              NSWindowStyleMaskMiniaturizable | NSWindowStyleMaskResizable
                                      backing:NSBackingStoreBuffered
                                        defer:YES];
    [window setReleasedWhenClosed:NO];
    [window setTitle:localizedText("Tarnwick")];
    [window setCollectionBehavior:NSWindowCollectionBehaviorFullScreenNone];
    if (@available(macOS 10.12, *)) {
        [window setTabbingMode:NSWindowTabbingModeDisallowed];
    }
    // The order is made anew whenever another page is shown.
    [window setAutorecalculatesKeyViewLoop:NO];
    [window setContentView:view];
    [window setInitialFirstResponder:[controller tableOf:RuleCategory::createNewFile]];
    const CGFloat minimumWidth = [controller minimumWidth];
    [window setContentMinSize:NSMakeSize(minimumWidth, windowMinimumHeight)];
    [window setContentSize:NSMakeSize(std::max<CGFloat>(windowWidth, minimumWidth), windowHeight)];
    [window center];
    [window setFrameAutosaveName:@"Settings"];
    return window;
}

} // namespace tarnwick
