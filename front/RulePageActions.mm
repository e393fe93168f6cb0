#import "front/RulePageActions.h"

#import "front/SettingsViewController.h"

namespace tarnwick {

RulePageActions actionsOf(RuleCategory category) {
    switch (category) {
    case RuleCategory::createNewFile:
        return {
            @selector(createNewFileViewClick:), @selector(addCreateNewFileRule:),
                @selector(removeCreateNewFileRule:), @selector(resetCreateNewFileRule:),
                @selector(enableAllOfCreateNewFilesClick:)
        };
    case RuleCategory::copyFilesTo:
        return {
            @selector(copyFilesToViewClick:), @selector(addSendFilesToRule:),
                @selector(removeCopyFilesToRule:), @selector(resetCopyFilesToRule:), nullptr
        };
    case RuleCategory::commonPath:
        return {
            @selector(commonPathViewClick:), @selector(addCommonPathRule:), @selector(removeCommondPathRule:),
                nullptr, nullptr
        };
    case RuleCategory::customIcon:
        return {
            @selector(customIconViewClick:), @selector(addCustomIconRule:), @selector(removeCustomIconRule:),
                @selector(resetCustomIconRule:), @selector(enableAllOfCustomIconClick:)
        };
    case RuleCategory::others:
        break;
    }
    return {
        @selector(othersViewClick:), @selector(addOthersRule:), @selector(removeOthersRule:),
            @selector(resetOthersRule:), @selector(enableAllOfOthersClick:)
    };
}

} // namespace tarnwick
