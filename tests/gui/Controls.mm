#include "tests/gui/Controls.h"

#include "tests/gui/Input.h"
#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "gnustep/include/TNTheme.h"

#import <AppKit/AppKit.h>

namespace {

using tarnwick::toString;
using tarnwick::gui::ControlFacts;
using tarnwick::gui::settingsWindow;

std::string kindOf(NSView *view) {
    if ([view isKindOfClass:[NSTableView class]]) {
        return "table";
    }
    if ([view isKindOfClass:[NSImageView class]]) {
        return "image";
    }
    if ([view isKindOfClass:[NSTextField class]]) {
        return [static_cast<NSTextField *>(view) isEditable] ? "field" : "text";
    }
    if ([view isKindOfClass:[NSButton class]]) {
        return TNIsCheckBox([static_cast<NSButton *>(view) cell]) ? "check box" : "button";
    }
    return "other";
}

ControlFacts controlFacts(NSView *view) {
    NSString *label = [view accessibilityLabel];
    if ([label length] == 0 && [view isKindOfClass:[NSButton class]]) {
        label = [static_cast<NSButton *>(view) title];
    }
    if ([label length] == 0 && [view isKindOfClass:[NSTextField class]]) {
        label = [static_cast<NSTextField *>(view) stringValue];
    }
    return {kindOf(view), toString(label)};
}

bool isControl(NSView *view) {
    return [view isKindOfClass:[NSControl class]] && ![view isKindOfClass:[NSScroller class]];
}

void collect(NSView *view, std::vector<ControlFacts> &found) {
    if ([view isHidden]) {
        return;
    }
    if (isControl(view)) {
        found.push_back(controlFacts(view));
    }
    for (NSView *inner in [view subviews]) {
        collect(inner, found);
    }
}

void collectWithoutHelp(NSView *view, std::vector<std::string> &found) {
    if ([view isHidden] || [view isKindOfClass:[NSTableView class]]) {
        return;
    }
    if ([view isKindOfClass:[NSButton class]] && [[view toolTip] length] == 0 &&
        [[view accessibilityHelp] length] == 0) {
        found.push_back(controlFacts(view).label);
    }
    for (NSView *inner in [view subviews]) {
        collectWithoutHelp(inner, found);
    }
}

void collectItems(NSMenu *menu, std::vector<tarnwick::gui::BarItemFacts> &found) {
    [menu update];
    for (NSMenuItem *item in [menu itemArray]) {
        if ([item isSeparatorItem]) {
            continue;
        }
        NSString *tip = [item toolTip] ? [item toolTip] : @"";
        found.push_back({toString([item title]), static_cast<bool>([item isEnabled]), toString(tip)});
        if ([item hasSubmenu]) {
            collectItems([item submenu], found);
        }
    }
}

/// The control that has the keyboard, also while its text is being edited.
NSView *keyboardView() {
    NSResponder *responder = [settingsWindow() firstResponder];
    if ([responder isKindOfClass:[NSText class]] && [static_cast<NSText *>(responder) isFieldEditor]) {
        responder = (NSResponder *)[static_cast<NSText *>(responder) delegate];
    }
    return [responder isKindOfClass:[NSView class]] ? static_cast<NSView *>(responder) : nil;
}

} // namespace

namespace tarnwick::gui {

std::vector<ControlFacts> visibleControls() {
    std::vector<ControlFacts> found;
    collect([settingsWindow() contentView], found);
    return found;
}

std::vector<std::string> controlsWithoutHelp() {
    std::vector<std::string> found;
    collectWithoutHelp([settingsWindow() contentView], found);
    return found;
}

std::vector<BarItemFacts> menuItems() {
    std::vector<BarItemFacts> found;
    collectItems([NSApp mainMenu], found);
    return found;
}

ControlFacts keyboardControl() {
    return controlFacts(keyboardView());
}

bool tabTo(const std::string &label) {
    constexpr int more = 40;
    for (int presses = 0; presses < more; ++presses) {
        if (controlFacts(keyboardView()).label == label) {
            return true;
        }
        press(Key::tab);
    }
    return false;
}

std::vector<ControlFacts> tabOrder() {
    NSView *first = firstView(
        [settingsWindow() contentView], [](NSView *view) { return [view isKindOfClass:[NSButton class]]; });
    [settingsWindow() makeFirstResponder:first];
    std::vector<ControlFacts> order{controlFacts(first)};
    constexpr std::size_t more = 40;
    while (order.size() < more) {
        press(Key::tab);
        NSView *view = keyboardView();
        if (view == first) {
            return order;
        }
        order.push_back(controlFacts(view));
    }
    return order;
}

} // namespace tarnwick::gui
