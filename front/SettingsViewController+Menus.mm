#import "front/RulePageActions.h"
#import "front/SettingsOutlets.h"
#import "front/SettingsViewController.h"

#include "ui/SettingsViewController.h"
#include "ui/WindowLayout.h"

#include <optional>

using tarnwick::MoveDirection;

namespace {

std::optional<tarnwick::RuleCategory> shownCategory(NSTabView *tabView) {
    const NSInteger index = [tabView indexOfTabViewItem:[tabView selectedTabViewItem]];
    if (index < 0 || index >= static_cast<NSInteger>(tarnwick::pageCount)) {
        return std::nullopt;
    }
    return tarnwick::pageLayouts()[static_cast<std::size_t>(index)].category;
}

} // namespace

@implementation SettingsViewController (Menus)

- (void)addRuleOfCurrentPage:(id)sender {
    if (const auto category = shownCategory([[self outlets] tabView])) {
        [NSApp sendAction:tarnwick::actionsOf(*category).add to:self from:sender];
    }
}

- (void)moveSelectedRule:(MoveDirection)direction {
    if (const auto category = shownCategory([[self outlets] tabView])) {
        [self controller]->moveSelectedRule(*category, direction);
    }
}

- (BOOL)canMoveSelectedRule:(MoveDirection)direction {
    const auto category = shownCategory([[self outlets] tabView]);
    return category && [self controller]->canMoveSelectedRule(*category, direction);
}

- (void)moveSelectedRuleUp:(id)sender {
    [self moveSelectedRule:MoveDirection::up];
}

- (void)moveSelectedRuleDown:(id)sender {
    [self moveSelectedRule:MoveDirection::down];
}

- (BOOL)validateMenuItem:(NSMenuItem *)item {
    if ([item action] == @selector(doInstallScript)) {
        [item setState:[self checkScriptInstalled] ? NSControlStateValueOn : NSControlStateValueOff];
    }
    if ([item action] == @selector(addRuleOfCurrentPage:)) {
        return shownCategory([[self outlets] tabView]).has_value();
    }
    if ([item action] == @selector(moveSelectedRuleUp:)) {
        return [self canMoveSelectedRule:MoveDirection::up];
    }
    if ([item action] == @selector(moveSelectedRuleDown:)) {
        return [self canMoveSelectedRule:MoveDirection::down];
    }
    return YES;
}

@end
