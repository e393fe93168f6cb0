#pragma once

#import <AppKit/AppKit.h>

#include <string_view>

namespace tarnwick {

/// Small makers of the window's fixed controls; everything is autoreleased and every text goes through the
/// localisation table.

[[nodiscard]] NSString *localizedText(std::string_view key);
/// A label of one line or, with `wraps`, of several.
[[nodiscard]] NSTextField *makeLabel(NSString *text, NSFont *font, NSColor *color, bool wraps = false);
/// The colour of explanations, hints and other small print.
[[nodiscard]] NSColor *secondaryTextColor();
/// A push button as wide as its title needs.
[[nodiscard]] NSButton *makePushButton(NSString *title, id target, SEL action);
/// The same for a button of a class of its own.
void preparePushButton(NSButton *button, NSString *title, id target, SEL action);
/// An image of the application's resources by its name without extension; nil when missing.
[[nodiscard]] NSImage *resourceImage(std::string_view name);

} // namespace tarnwick
