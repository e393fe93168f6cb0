#import "platform/appkit/RulePageActions.h"
#import "platform/appkit/SettingsOutlets.h"
#import "platform/appkit/SettingsViewController.h"

#include "ui/WindowLayout.h"

#include <optional>

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

- (BOOL)validateMenuItem:(NSMenuItem *)item {
    if ([item action] == @selector(doInstallScript)) {
        [item setState:[self checkScriptInstalled] ? NSControlStateValueOn : NSControlStateValueOff];
    }
    if ([item action] == @selector(addRuleOfCurrentPage:)) {
        return shownCategory([[self outlets] tabView]).has_value();
    }
    return YES;
}

@end
