#import "front/MainMenu.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"
#import "front/Selectors.h"
#import "front/SettingsViewController.h"

#include "ui/MenuLayout.h"
#include "ui/WindowLayout.h"

#include <string>

namespace tarnwick {
namespace {

NSUInteger modifierMask(KeyModifiers modifiers) {
    switch (modifiers) {
    case KeyModifiers::command:
        break;
    case KeyModifiers::shiftCommand:
        return NSEventModifierFlagCommand | NSEventModifierFlagShift;
    case KeyModifiers::optionCommand:
        return NSEventModifierFlagCommand | NSEventModifierFlagOption;
    }
    return NSEventModifierFlagCommand;
}

NSMenuItem *makeItem(std::string_view title, SEL action, NSString *key, id target) {
    NSMenuItem *item = [[[NSMenuItem alloc] initWithTitle:localizedText(title)
                                                   action:action
                                            keyEquivalent:key] autorelease];
    [item setTarget:target];
    return item;
}

NSMenuItem *makeItem(const MenuItemLayout &layout, SettingsViewController *controller) {
    if (layout.command == Command::separator) {
        return static_cast<NSMenuItem *>([NSMenuItem separatorItem]);
    }
    const auto action = actionOf(layout.command);
    const unichar key = layout.key;
    NSMenuItem *item =
        makeItem(layout.title, action.selector, [NSString stringWithCharacters:&key length:key != 0 ? 1 : 0],
            action.isTheControllers ? controller : nil);
    if (layout.modifiers != KeyModifiers::command) {
        [item setKeyEquivalentModifierMask:modifierMask(layout.modifiers)];
    }
    return item;
}

void addPages(NSMenu *menu, SettingsViewController *controller) {
    int number = 0;
    for (const auto page : allPages) {
        [menu addItem:makeItem(layoutOf(page).title, actionOf(page), toNSString(std::to_string(++number)),
                          controller)];
    }
}

NSMenu *makeMenu(const MenuLayout &layout, SettingsViewController *controller) {
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:localizedText(layout.title)] autorelease];
    for (const auto &item : layout.items) {
        [menu addItem:makeItem(item, controller)];
    }
    if (layout.role == MenuRole::pages) {
        addPages(menu, controller);
    }
    return menu;
}

} // namespace

void installMainMenu(SettingsViewController *controller) {
    NSMenu *bar = [[[NSMenu alloc] initWithTitle:localizedText("Tarnwick")] autorelease];
    NSMenu *windows = nil;
    for (const auto &layout : menuBar()) {
        NSMenu *menu = makeMenu(layout, controller);
        NSMenuItem *item = makeItem(layout.title, nullptr, @"", nil);
        [item setSubmenu:menu];
        [bar addItem:item];
        windows = layout.role == MenuRole::windows ? menu : windows;
    }
    [NSApp setMainMenu:bar];
    [NSApp setWindowsMenu:windows];
}

} // namespace tarnwick
