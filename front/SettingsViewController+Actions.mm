#import "front/SettingsViewController+Actions.h"

using tarnwick::Page;
using tarnwick::RuleCategory;
namespace field = tarnwick::field;

namespace {

bool isOn(id sender) {
    return [sender state] == NSControlStateValueOn;
}

} // namespace

@implementation SettingsViewController (Pages)

- (void)createNewFilePressed:(id)sender {
    _controller->showPage(Page::createNewFile);
}

- (void)copyFilesToPressed:(id)sender {
    _controller->showPage(Page::copyFilesTo);
}

- (void)commonPathPressed:(id)sender {
    _controller->showPage(Page::commonPath);
}

- (void)customIconFolder:(id)sender {
    _controller->showPage(Page::customIcon);
}

- (void)otherOptionPressed:(id)sender {
    _controller->showPage(Page::others);
}

- (void)moreAppPressed:(id)sender {
    _controller->showPage(Page::moreApps);
}

- (void)createNewFileViewClick:(id)sender {
    _controller->tableClicked(RuleCategory::createNewFile);
}

- (void)copyFilesToViewClick:(id)sender {
    _controller->tableClicked(RuleCategory::copyFilesTo);
}

- (void)commonPathViewClick:(id)sender {
    _controller->tableClicked(RuleCategory::commonPath);
}

- (void)customIconViewClick:(id)sender {
    _controller->tableClicked(RuleCategory::customIcon);
}

- (void)othersViewClick:(id)sender {
    _controller->tableClicked(RuleCategory::others);
}

@end

@implementation SettingsViewController (Rules)

- (void)addCreateNewFileRule:(id)sender {
    _controller->add(RuleCategory::createNewFile);
}

- (void)addSendFilesToRule:(id)sender {
    _controller->add(RuleCategory::copyFilesTo);
}

- (void)addCommonPathRule:(id)sender {
    _controller->add(RuleCategory::commonPath);
}

- (void)addCustomIconRule:(id)sender {
    _controller->add(RuleCategory::customIcon);
}

- (void)addOthersRule:(id)sender {
    _controller->add(RuleCategory::others);
}

- (void)removeCreateNewFileRule:(id)sender {
    _controller->remove(RuleCategory::createNewFile);
}

- (void)removeCopyFilesToRule:(id)sender {
    _controller->remove(RuleCategory::copyFilesTo);
}

- (void)removeCommondPathRule:(id)sender {
    _controller->remove(RuleCategory::commonPath);
}

- (void)removeCustomIconRule:(id)sender {
    _controller->remove(RuleCategory::customIcon);
}

- (void)removeOthersRule:(id)sender {
    _controller->remove(RuleCategory::others);
}

- (void)resetCreateNewFileRule:(id)sender {
    _controller->reset(RuleCategory::createNewFile);
}

- (void)resetCopyFilesToRule:(id)sender {
    _controller->reset(RuleCategory::copyFilesTo);
}

- (void)resetCustomIconRule:(id)sender {
    _controller->reset(RuleCategory::customIcon);
}

- (void)resetOthersRule:(id)sender {
    _controller->reset(RuleCategory::others);
}

- (void)OnOffcheckedStateChangedOfCreateNewFile:(id)sender {
    _controller->set(RuleCategory::createNewFile, [sender tag], field::enable, isOn(sender));
}

- (void)OnOffEnableMainMenuStateChangedOfCreateNewFile:(id)sender {
    _controller->set(RuleCategory::createNewFile, [sender tag], field::enableMainMenu, isOn(sender));
}

- (void)OnOffcheckedStateChangedOfCopyTo:(id)sender {
    _controller->set(RuleCategory::copyFilesTo, [sender tag], field::enable, isOn(sender));
}

- (void)OnOffcheckedStateChangedOfCustomIcon:(id)sender {
    _controller->set(RuleCategory::customIcon, [sender tag], field::enable, isOn(sender));
}

- (void)OnOffcheckedStateChangedOfOthers:(id)sender {
    _controller->set(RuleCategory::others, [sender tag], field::enable, isOn(sender));
}

- (void)enableAllOfCreateNewFilesClick:(id)sender {
    _controller->enableAll(RuleCategory::createNewFile);
}

- (void)enableAllOfCustomIconClick:(id)sender {
    _controller->enableAll(RuleCategory::customIcon);
}

- (void)enableAllOfOthersClick:(id)sender {
    _controller->enableAll(RuleCategory::others);
}

- (void)selectPath:(id)sender {
    _controller->selectPath(RuleCategory::copyFilesTo, [sender tag]);
}

- (void)copyFilesToViewDoubleClick:(NSTableView *)sender {
    [self choosePathClickedIn:sender category:RuleCategory::copyFilesTo];
}

- (void)selectCommonPath:(id)sender {
    _controller->selectPath(RuleCategory::commonPath, [sender tag]);
}

- (void)commonPathViewDoubleClick:(NSTableView *)sender {
    [self choosePathClickedIn:sender category:RuleCategory::commonPath];
}

- (void)choosePathClickedIn:(NSTableView *)table category:(RuleCategory)category {
    const NSInteger pathColumn = [table columnWithIdentifier:@"realPath"];
    if ([table clickedRow] >= 0 && [table clickedColumn] == pathColumn) {
        _controller->selectPath(category, [table clickedRow]);
    }
}

@end
