#import "front/MenuItems.h"

#import "front/ControlMaking.h"
#import "front/Selectors.h"
#import "front/SettingsViewController.h"

namespace tarnwick {
namespace {

NSUInteger modifierMask(KeyModifiers modifiers) {
    switch (modifiers) {
    case KeyModifiers::none:
        return 0;
    case KeyModifiers::command:
        break;
    case KeyModifiers::shiftCommand:
        return NSEventModifierFlagCommand | NSEventModifierFlagShift;
    case KeyModifiers::optionCommand:
        return NSEventModifierFlagCommand | NSEventModifierFlagOption;
    }
    return NSEventModifierFlagCommand;
}

} // namespace

NSMenuItem *makeMenuItem(std::string_view title, SEL action, NSString *key, id target) {
    NSMenuItem *item = [[[NSMenuItem alloc] initWithTitle:localizedText(title)
                                                   action:action
                                            keyEquivalent:key] autorelease];
    [item setTarget:target];
    return item;
}

NSMenuItem *makeMenuItem(const MenuItemLayout &layout, SettingsViewController *controller) {
    if (layout.command == Command::separator) {
        return static_cast<NSMenuItem *>([NSMenuItem separatorItem]);
    }
    const auto action = actionOf(layout.command);
    const bool isOnlyShown = layout.modifiers == KeyModifiers::none;
    NSMenuItem *item = makeMenuItem(layout.title, action.selector, isOnlyShown ? @"" : keyOf(layout),
        action.isTheControllers ? controller : nil);
    if (layout.modifiers != KeyModifiers::command) {
        [item setKeyEquivalentModifierMask:modifierMask(layout.modifiers)];
    }
    [item setTag:static_cast<NSInteger>(layout.command)];
    return item;
}

NSString *keyOf(const MenuItemLayout &layout) {
    const unichar key = layout.key;
    return [NSString stringWithCharacters:&key length:key != 0 ? 1 : 0];
}

} // namespace tarnwick
