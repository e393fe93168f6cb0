#import "front/MainMenu.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"
#import "front/SettingsViewController.h"

#include "ui/WindowLayout.h"

#include <string>

/// Actions that the responder chain answers without any header saying so.
@protocol UndoActions
- (void)undo:(id)sender;
- (void)redo:(id)sender;
@end

namespace tarnwick {
namespace {

NSMenu *makeMenu(std::string_view title) {
    return [[[NSMenu alloc] initWithTitle:localizedText(title)] autorelease];
}

void addSubmenu(NSMenu *bar, NSMenu *menu) {
    NSMenuItem *item = [[[NSMenuItem alloc] initWithTitle:[menu title] action:nullptr
                                            keyEquivalent:@""] autorelease];
    [item setSubmenu:menu];
    [bar addItem:item];
}

/// Without a target the item goes to the first responder that answers.
NSMenuItem *addItem(NSMenu *menu, std::string_view title, SEL action, NSString *key = @"", id target = nil) {
    NSMenuItem *item = [[[NSMenuItem alloc] initWithTitle:localizedText(title)
                                                   action:action
                                            keyEquivalent:key] autorelease];
    [item setTarget:target];
    [menu addItem:item];
    return item;
}

void addSeparator(NSMenu *menu) {
    [menu addItem:[NSMenuItem separatorItem]];
}

NSMenu *makeApplicationMenu(::SettingsViewController *controller) {
    NSMenu *menu = makeMenu("Tarnwick");
    addItem(menu, "About Tarnwick", @selector(orderFrontStandardAboutPanel:));
    addSeparator(menu);
    addItem(menu, "Enable Extension\u2026", @selector(openSystemPreferences), @"", controller);
    addItem(menu, "Install Script Helper\u2026", @selector(doInstallScript), @"", controller);
    addItem(menu, "Initialize All Settings\u2026", @selector(initialize), @"", controller);
    addSeparator(menu);
    addItem(menu, "Hide Tarnwick", @selector(hide:), @"h");
    [addItem(menu, "Hide Others", @selector(hideOtherApplications:), @"h")
        setKeyEquivalentModifierMask:NSEventModifierFlagCommand | NSEventModifierFlagOption];
    addItem(menu, "Show All", @selector(unhideAllApplications:));
    addSeparator(menu);
    addItem(menu, "Quit Tarnwick", @selector(terminate:), @"q");
    return menu;
}

NSMenu *makeFileMenu(::SettingsViewController *controller) {
    NSMenu *menu = makeMenu("File");
    addItem(menu, "Add\u2026", @selector(addRuleOfCurrentPage:), @"n", controller);
    addSeparator(menu);
    addItem(menu, "Close Window", @selector(performClose:), @"w");
    return menu;
}

NSString *keyOf(unichar character) {
    return [NSString stringWithCharacters:&character length:1];
}

NSMenu *makeEditMenu(::SettingsViewController *controller) {
    NSMenu *menu = makeMenu("Edit");
    addItem(menu, "Undo", @selector(undo:), @"z");
    [addItem(menu, "Redo", @selector(redo:), @"z")
        setKeyEquivalentModifierMask:NSEventModifierFlagCommand | NSEventModifierFlagShift];
    addSeparator(menu);
    addItem(menu, "Cut Text", @selector(cut:), @"x");
    addItem(menu, "Copy Text", @selector(copy:), @"c");
    addItem(menu, "Paste Text", @selector(paste:), @"v");
    addItem(menu, "Select All", @selector(selectAll:), @"a");
    addSeparator(menu);
    const NSUInteger optionCommand = NSEventModifierFlagOption | NSEventModifierFlagCommand;
    [addItem(menu, "Move Up", @selector(moveSelectedRuleUp:), keyOf(NSUpArrowFunctionKey), controller)
        setKeyEquivalentModifierMask:optionCommand];
    [addItem(menu, "Move Down", @selector(moveSelectedRuleDown:), keyOf(NSDownArrowFunctionKey), controller)
        setKeyEquivalentModifierMask:optionCommand];
    return menu;
}

NSMenu *makeViewMenu(::SettingsViewController *controller) {
    NSMenu *menu = makeMenu("View");
    const SEL actions[] = {
        @selector(createNewFilePressed:),
        @selector(copyFilesToPressed:),
        @selector(commonPathPressed:),
        @selector(customIconFolder:),
        @selector(otherOptionPressed:),
        @selector(moreAppPressed:)
    };
    for (const auto &layout : pageLayouts()) {
        const auto index = static_cast<std::size_t>(layout.page);
        addItem(menu, layout.title, actions[index], toNSString(std::to_string(index + 1)), controller);
    }
    return menu;
}

NSMenu *makeWindowMenu() {
    NSMenu *menu = makeMenu("Window");
    addItem(menu, "Minimize", @selector(performMiniaturize:), @"m");
    addItem(menu, "Zoom", @selector(performZoom:));
    addSeparator(menu);
    addItem(menu, "Bring All to Front", @selector(arrangeInFront:));
    return menu;
}

NSMenu *makeHelpMenu(::SettingsViewController *controller) {
    NSMenu *menu = makeMenu("Help");
    addItem(menu, "Restarting the Finder", @selector(initializeClick:), @"", controller);
    addItem(menu, "Turning on the Services", @selector(helpServicesOfSystemPreferences:), @"", controller);
    addSeparator(menu);
    addItem(menu, "Open Services Settings", @selector(openServicesOfSystemPreferences), @"", controller);
    return menu;
}

} // namespace

void installMainMenu(::SettingsViewController *controller) {
    NSMenu *bar = makeMenu("Tarnwick");
    NSMenu *windows = makeWindowMenu();
    addSubmenu(bar, makeApplicationMenu(controller));
    addSubmenu(bar, makeFileMenu(controller));
    addSubmenu(bar, makeEditMenu(controller));
    addSubmenu(bar, makeViewMenu(controller));
    addSubmenu(bar, windows);
    addSubmenu(bar, makeHelpMenu(controller));
    [NSApp setMainMenu:bar];
    [NSApp setWindowsMenu:windows];
}

} // namespace tarnwick
