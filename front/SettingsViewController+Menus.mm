#import "front/SettingsViewController+Actions.h"

#import "front/Selectors.h"
#import "front/SettingsViewController+Finding.h"

#include "ui/WindowLayout.h"

using tarnwick::MoveDirection;

@implementation SettingsViewController (Menus)

- (std::optional<tarnwick::RuleCategory>)shownCategory {
    const NSInteger shown = [_tabView indexOfTabViewItem:[_tabView selectedTabViewItem]];
    for (const auto page : tarnwick::allPages) {
        if (shown == static_cast<NSInteger>(page)) {
            return tarnwick::layoutOf(page).category;
        }
    }
    return std::nullopt;
}

- (void)addRuleOfCurrentPage:(id)sender {
    if (const auto category = [self shownCategory]) {
        [NSApp sendAction:tarnwick::actionsOf(*category).add to:self from:sender];
    }
}

- (void)exportSettings:(id)sender {
    _controller->exportSettings();
}

- (void)importSettings:(id)sender {
    _controller->importSettings();
}

- (void)moveSelectedRule:(MoveDirection)direction {
    if (const auto category = [self shownCategory]) {
        _controller->moveSelectedRule(*category, direction);
    }
}

- (BOOL)canMoveSelectedRule:(MoveDirection)direction {
    const auto category = [self shownCategory];
    return category && _controller->canMoveSelectedRule(*category, direction);
}

- (void)moveSelectedRuleUp:(id)sender {
    [self moveSelectedRule:MoveDirection::up];
}

- (void)moveSelectedRuleDown:(id)sender {
    [self moveSelectedRule:MoveDirection::down];
}

- (BOOL)validateMenuItem:(NSMenuItem *)item {
    const SEL action = [item action];
    if (sel_isEqual(action, @selector(doInstallScript))) {
        [item setState:[self checkScriptInstalled] ? NSControlStateValueOn : NSControlStateValueOff];
    }
    if (sel_isEqual(action, @selector(addRuleOfCurrentPage:))) {
        return [self shownCategory].has_value();
    }
    if (sel_isEqual(action, @selector(moveSelectedRuleUp:))) {
        return [self canMoveSelectedRule:MoveDirection::up];
    }
    if (sel_isEqual(action, @selector(moveSelectedRuleDown:))) {
        return [self canMoveSelectedRule:MoveDirection::down];
    }
    if (sel_isEqual(action, @selector(showFindBar:))) {
        return [self canShowFindBar];
    }
    if (sel_isEqual(action, @selector(findNextRule:)) || sel_isEqual(action, @selector(findPreviousRule:))) {
        return [self canFindAgain];
    }
    return YES;
}

@end
