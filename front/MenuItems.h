#pragma once

#import <AppKit/AppKit.h>

#include "ui/MenuLayout.h"

#include <string_view>

@class SettingsViewController;

namespace tarnwick {

/// Autoreleased, its title localised.
[[nodiscard]] NSMenuItem *makeMenuItem(std::string_view title, SEL action, NSString *key, id target);
/// The same as laid out, tagged with its command. Keys that a menu only shows are left out.
[[nodiscard]] NSMenuItem *makeMenuItem(const MenuItemLayout &layout, SettingsViewController *controller);
/// The item's own key; empty without one.
[[nodiscard]] NSString *keyOf(const MenuItemLayout &layout);

} // namespace tarnwick
