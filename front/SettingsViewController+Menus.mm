#import "front/SettingsViewController+Actions.h"
#import "front/SettingsViewController+System.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"
#import "front/LayoutDirection.h"
#import "front/NoticeLine.h"
#import "front/PreviewMenu.h"
#import "front/Selectors.h"
#import "front/SettingsViewController+Finding.h"

#include "ui/WindowLayout.h"

using tarnwick::Command;
using tarnwick::Page;

namespace {

void mark(NSMenuItem *item, bool on, bool mixed = false) {
    [item setState:mixed ? NSControlStateValueMixed : on ? NSControlStateValueOn : NSControlStateValueOff];
}

std::optional<Page> pageShownBy(SEL action) {
    for (const auto page : tarnwick::allPages) {
        if (sel_isEqual(action, tarnwick::actionOf(page))) {
            return page;
        }
    }
    return std::nullopt;
}

} // namespace

@implementation SettingsViewController (Menus)

- (std::optional<Page>)shownPage {
    const NSInteger shown = [_tabView indexOfTabViewItem:[_tabView selectedTabViewItem]];
    for (const auto page : tarnwick::allPages) {
        if (shown == static_cast<NSInteger>(page)) {
            return page;
        }
    }
    return std::nullopt;
}

- (std::optional<tarnwick::RuleCategory>)shownCategory {
    const auto page = [self shownPage];
    return page ? tarnwick::layoutOf(*page).category : std::nullopt;
}

- (void)performRuleCommand:(NSMenuItem *)sender {
    _controller->commands().perform([self shownCategory], static_cast<Command>([sender tag]));
}

- (void)exportSettings:(id)sender {
    _controller->transfer().exportSettings();
}

- (void)importSettings:(id)sender {
    _controller->transfer().importSettings();
}

- (BOOL)validateRuleItem:(NSMenuItem *)item {
    const auto state = _controller->commands().state([self shownCategory], static_cast<Command>([item tag]));
    if (!state.title.empty()) {
        [item setTitle:tarnwick::localizedText(state.title)];
    }
    mark(item, state.isOn, state.isMixed);
    [item setToolTip:state.isPossible() ? nil : tarnwick::localizedText(state.obstacle)];
    return state.isPossible();
}

- (void)previewMenu:(id)sender {
    const auto &preview = _controller->preview();
    NSMenu *menu = tarnwick::makePreviewMenu(preview, preview.items(), self);
    const NSRect button = [_previewButton bounds];
    [menu popUpMenuPositioningItem:nil
                        atLocation:NSMakePoint(tarnwick::leadingPlace(button, 0), NSMaxY(button))
                            inView:_previewButton];
}

- (void)showPreviewedRule:(PreviewedRule *)sender {
    _controller->showRule([sender item].category, static_cast<long>([sender item].row));
}

- (void)takeNoticeStep:(NoticeButton *)sender {
    // The button goes if the notice does.
    const auto notice = [sender notice];
    _controller->warnings().take(notice);
}

- (void)putNoticeAway:(NoticeButton *)sender {
    _controller->warnings().putAway([sender notice].kind);
}

- (void)showNextFault:(id)sender {
    if (const auto category = [self shownCategory]) {
        _controller->warnings().showNextFault(*category);
    }
}

- (BOOL)validateMenuItem:(NSMenuItem *)item {
    const SEL action = [item action];
    if (sel_isEqual(action, @selector(performRuleCommand:))) {
        return [self validateRuleItem:item];
    }
    if (sel_isEqual(action, @selector(doInstallScript))) {
        mark(item, [self checkScriptInstalled]);
    } else if (const auto page = pageShownBy(action)) {
        mark(item, page == [self shownPage]);
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
