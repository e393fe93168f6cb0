#import "front/RuleMenu.h"

#import "front/ControlMaking.h"
#import "front/MenuItems.h"
#import "front/SettingsViewController+Actions.h"

#include "ui/MenuLayout.h"
#include "ui/RuleCommands.h"

using tarnwick::Command;
using tarnwick::RuleCommands;

// Where the delegate's methods are not declared optional, they are all the same.
#pragma clang diagnostic ignored "-Wprotocol"

@implementation RuleMenu

- (instancetype)initWithController:(SettingsViewController *)controller scope:(tarnwick::RuleMenuScope)scope {
    self = [super initWithTitle:tarnwick::localizedText("Rule")];
    if (self) {
        _controller = controller;
        _scope = scope;
        [self setDelegate:self];
        [self fill];
    }
    return self;
}

- (BOOL)shows:(Command)command {
    return RuleCommands::has(_category, command) &&
           (_scope == tarnwick::RuleMenuScope::rowAndList || !RuleCommands::isAboutARow(command));
}

/// A separator stands between two items alone.
- (void)fill {
    while ([self numberOfItems] > 0) {
        [self removeItemAtIndex:0];
    }
    const tarnwick::MenuItemLayout *separator = nullptr;
    for (const auto &layout : tarnwick::ruleMenu()) {
        if (layout.command == Command::separator) {
            separator = [self numberOfItems] > 0 ? &layout : nullptr;
        } else if ([self shows:layout.command]) {
            if (separator) {
                [self addItem:tarnwick::makeMenuItem(*separator, _controller)];
                separator = nullptr;
            }
            [self addItem:tarnwick::makeMenuItem(layout, _controller)];
        }
    }
}

- (void)showKeysOfTable:(BOOL)shown {
    for (const auto &layout : tarnwick::ruleMenu()) {
        if (layout.modifiers == tarnwick::KeyModifiers::none) {
            NSMenuItem *item =
                static_cast<NSMenuItem *>([self itemWithTag:static_cast<NSInteger>(layout.command)]);
            [item setKeyEquivalent:shown ? tarnwick::keyOf(layout) : @""];
        }
    }
}

- (void)menuNeedsUpdate:(NSMenu *)menu {
    const auto category = [_controller shownCategory];
    if (_category != category) {
        _category = category;
        [self fill];
    }
}

- (void)menuWillOpen:(NSMenu *)menu {
    [self showKeysOfTable:YES];
}

- (void)menuDidClose:(NSMenu *)menu {
    [self showKeysOfTable:NO];
}

@end
