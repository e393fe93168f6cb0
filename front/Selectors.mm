#import "front/Selectors.h"

#import "front/SettingsViewController+Actions.h"
#import "front/SettingsViewController+Finding.h"
#import "front/SettingsViewController+System.h"

/// Actions that the responder chain answers without any header saying so.
@protocol UndoActions
- (void)undo:(id)sender;
- (void)redo:(id)sender;
@end

namespace tarnwick {

const RuleActions &actionsOf(RuleCategory category) {
    static const PerCategory<RuleActions> actions(
        RuleActions {
            .click = @selector(createNewFileViewClick:), .add = @selector(addCreateNewFileRule:),
            .remove = @selector(removeCreateNewFileRule:), .reset = @selector(resetCreateNewFileRule:),
            .enableAll = @selector(enableAllOfCreateNewFilesClick:), .switches = {
                {field::enable, @selector(OnOffcheckedStateChangedOfCreateNewFile:)},
                {field::enableMainMenu, @selector(OnOffEnableMainMenuStateChangedOfCreateNewFile:)}
            }
        },
        RuleActions {
            .click = @selector(copyFilesToViewClick:), .add = @selector(addSendFilesToRule:),
            .remove = @selector(removeCopyFilesToRule:), .reset = @selector(resetCopyFilesToRule:),
            .choosePath = @selector(selectPath:), .doubleClick = @selector(copyFilesToViewDoubleClick:),
            .switches = {
                {field::enable, @selector(OnOffcheckedStateChangedOfCopyTo:)}
            }
        },
        RuleActions {
            .click = @selector(commonPathViewClick:), .add = @selector(addCommonPathRule:),
            .remove = @selector(removeCommondPathRule:), .choosePath = @selector(selectCommonPath:),
            .doubleClick = @selector(commonPathViewDoubleClick:)
        },
        RuleActions {
            .click = @selector(customIconViewClick:), .add = @selector(addCustomIconRule:),
            .remove = @selector(removeCustomIconRule:), .reset = @selector(resetCustomIconRule:),
            .enableAll = @selector(enableAllOfCustomIconClick:), .switches = {
                {field::enable, @selector(OnOffcheckedStateChangedOfCustomIcon:)}
            }
        },
        RuleActions {
            .click = @selector(othersViewClick:), .add = @selector(addOthersRule:),
            .remove = @selector(removeOthersRule:), .reset = @selector(resetOthersRule:),
            .enableAll = @selector(enableAllOfOthersClick:), .switches = {
                {field::enable, @selector(OnOffcheckedStateChangedOfOthers:)}
            }
        });
    return actions[category];
}

SEL actionOf(RuleCategory category, std::string_view switchedField) {
    for (const auto &[field, action] : actionsOf(category).switches) {
        if (field == switchedField) {
            return action;
        }
    }
    return nullptr;
}

SEL actionOf(Page page) {
    static const PerPage<SEL> actions(@selector(createNewFilePressed:), @selector(copyFilesToPressed:),
        @selector(commonPathPressed:), @selector(customIconFolder:), @selector(otherOptionPressed:),
        @selector(moreAppPressed:));
    return actions[page];
}

CommandAction actionOf(Command command) {
    constexpr bool controllers = true;
    constexpr bool anyones = false;
    switch (command) {
    case Command::separator:
    case Command::services:
        break;
    case Command::about:
        return {
            @selector(orderFrontStandardAboutPanel:), anyones
        };
    case Command::enableExtension:
        return {
            @selector(openSystemPreferences), controllers
        };
    case Command::installScriptHelper:
        return {
            @selector(doInstallScript), controllers
        };
    case Command::initialize:
        return {
            @selector(initialize), controllers
        };
    case Command::hide:
        return {
            @selector(hide:), anyones
        };
    case Command::hideOthers:
        return {
            @selector(hideOtherApplications:), anyones
        };
    case Command::showAll:
        return {
            @selector(unhideAllApplications:), anyones
        };
    case Command::quit:
        return {
            @selector(terminate:), anyones
        };
    case Command::exportSettings:
        return {
            @selector(exportSettings:), controllers
        };
    case Command::importSettings:
        return {
            @selector(importSettings:), controllers
        };
    case Command::closeWindow:
        return {
            @selector(performClose:), anyones
        };
    case Command::undo:
        return {
            @selector(undo:), anyones
        };
    case Command::redo:
        return {
            @selector(redo:), anyones
        };
    case Command::cut:
        return {
            @selector(cut:), anyones
        };
    case Command::copy:
        return {
            @selector(copy:), anyones
        };
    case Command::paste:
        return {
            @selector(paste:), anyones
        };
    case Command::selectAll:
        return {
            @selector(selectAll:), anyones
        };
    case Command::previewMenu:
        return {
            @selector(previewMenu:), controllers
        };
    case Command::find:
        return {
            @selector(showFindBar:), controllers
        };
    case Command::findNext:
        return {
            @selector(findNextRule:), controllers
        };
    case Command::findPrevious:
        return {
            @selector(findPreviousRule:), controllers
        };
    case Command::rename:
    case Command::editNote:
    case Command::turnOnOrOff:
    case Command::showInMainMenu:
    case Command::chooseFolder:
    case Command::showInFinder:
    case Command::openTemplate:
    case Command::moveUp:
    case Command::moveDown:
    case Command::removeRule:
    case Command::addRule:
    case Command::resetList:
    case Command::enableAll:
        return {
            @selector(performRuleCommand:), controllers
        };
    case Command::minimize:
        return {
            @selector(performMiniaturize:), anyones
        };
    case Command::zoom:
        return {
            @selector(performZoom:), anyones
        };
    case Command::bringAllToFront:
        return {
            @selector(arrangeInFront:), anyones
        };
    case Command::helpRestartingFinder:
        return {
            @selector(initializeClick:), controllers
        };
    case Command::helpServices:
        return {
            @selector(helpServicesOfSystemPreferences:), controllers
        };
    case Command::openServicesSettings:
        return {
            @selector(openServicesOfSystemPreferences), controllers
        };
    }
    return {nullptr, anyones};
}

} // namespace tarnwick
