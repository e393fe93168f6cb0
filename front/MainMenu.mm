#import "front/MainMenu.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"
#import "front/MenuItems.h"
#import "front/RuleMenu.h"
#import "front/Selectors.h"
#import "front/SettingsViewController.h"

#include "ui/MenuLayout.h"
#include "ui/WindowLayout.h"

#include <string>

namespace tarnwick {
namespace {

void addPages(NSMenu *menu, SettingsViewController *controller) {
    int number = 0;
    for (const auto page : allPages) {
        [menu addItem:makeMenuItem(layoutOf(page).title, actionOf(page), toNSString(std::to_string(++number)),
                          controller)];
    }
}

/// What other applications offer, which the system fills in.
void addServices(NSMenuItem *item) {
    NSMenu *services = [[[NSMenu alloc] initWithTitle:[item title]] autorelease];
    [item setSubmenu:services];
    [NSApp setServicesMenu:services];
}

NSMenu *makeMenu(const MenuLayout &layout, SettingsViewController *controller) {
    if (layout.role == MenuRole::rules) {
        return [[[RuleMenu alloc] initWithController:controller scope:RuleMenuScope::rowAndList] autorelease];
    }
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:localizedText(layout.title)] autorelease];
    if (layout.role == MenuRole::pages) {
        addPages(menu, controller);
    }
    for (const auto &facts : layout.items) {
        NSMenuItem *item = makeMenuItem(facts, controller);
        [menu addItem:item];
        if (facts.command == Command::services) {
            addServices(item);
        }
    }
    return menu;
}

/// Tells the application of the menus that it adds to by itself.
void announce(NSMenu *menu, MenuRole role) {
    if (role == MenuRole::windows) {
        [NSApp setWindowsMenu:menu];
    } else if (role == MenuRole::help) {
        [NSApp setHelpMenu:menu];
    }
}

} // namespace

void installMainMenu(SettingsViewController *controller) {
    NSMenu *bar = [[[NSMenu alloc] initWithTitle:localizedText("Tarnwick")] autorelease];
    for (const auto &layout : menuBar()) {
        NSMenuItem *item = makeMenuItem(layout.title, nullptr, @"", nil);
        [item setSubmenu:makeMenu(layout, controller)];
        [bar addItem:item];
    }
    [NSApp setMainMenu:bar];
    NSInteger place = 0;
    for (const auto &layout : menuBar()) {
        announce([[bar itemAtIndex:place++] submenu], layout.role);
    }
}

} // namespace tarnwick
