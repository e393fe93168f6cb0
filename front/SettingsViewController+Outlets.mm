#import "front/SettingsViewController.h"

using tarnwick::Page;
using tarnwick::PerCategory;
using tarnwick::PerPage;
using tarnwick::RuleCategory;

@implementation SettingsViewController (Outlets)

- (NSTableView **)tablePlaceOf:(RuleCategory)category {
    const PerCategory<NSTableView **> places(&_createNewFileTableView, &_copyFilesToTableView,
        &_commonPathTableView, &_customIconTableView, &_othersTableView);
    return places[category];
}

- (NSButton **)removeButtonPlaceOf:(RuleCategory)category {
    const PerCategory<NSButton **> places(&_removeCreateNewFileViewButton, &_removeCopyFilesToViewButton,
        &_removeCommonPathViewButton, &_removeCustomIconViewButton, &_removeOthersViewButton);
    return places[category];
}

- (NSButton **)buttonPlaceOf:(Page)page {
    const PerPage<NSButton **> places(&_createNewFileButton, &_copyFilesToButton, &_commonPathToButton,
        &_customIconButton, &_otherOptionButton, &_moreAppButton);
    return places[page];
}

- (NSTableView *)tableOf:(RuleCategory)category {
    return *[self tablePlaceOf:category];
}

- (NSButton *)removeButtonOf:(RuleCategory)category {
    return *[self removeButtonPlaceOf:category];
}

- (void)setTable:(NSTableView *)table removeButton:(NSButton *)button ofCategory:(RuleCategory)category {
    *[self tablePlaceOf:category] = table;
    *[self removeButtonPlaceOf:category] = button;
}

- (std::optional<RuleCategory>)categoryOf:(id)table {
    for (const auto category : tarnwick::allRuleCategories) {
        if (table && [self tableOf:category] == table) {
            return category;
        }
    }
    return std::nullopt;
}

- (NSButton *)buttonOf:(Page)page {
    return *[self buttonPlaceOf:page];
}

- (void)setButton:(NSButton *)button ofPage:(Page)page {
    *[self buttonPlaceOf:page] = button;
}

@end
