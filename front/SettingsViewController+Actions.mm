#import "front/SettingsViewController.h"

#include "ui/SettingsViewController.h"

namespace {

long rowOf(id sender) {
    return [sender tag];
}

bool isOn(id sender) {
    return [sender state] == NSControlStateValueOn;
}

} // namespace

@implementation SettingsViewController (Actions)

- (void)createNewFilePressed:(id)sender {
    [self controller]->createNewFilePressed();
}

- (void)copyFilesToPressed:(id)sender {
    [self controller]->copyFilesToPressed();
}

- (void)commonPathPressed:(id)sender {
    [self controller]->commonPathPressed();
}

- (void)customIconFolder:(id)sender {
    [self controller]->customIconFolder();
}

- (void)otherOptionPressed:(id)sender {
    [self controller]->otherOptionPressed();
}

- (void)moreAppPressed:(id)sender {
    [self controller]->moreAppPressed();
}

- (void)createNewFileViewClick:(id)sender {
    [self controller]->createNewFileViewClick();
}

- (void)copyFilesToViewClick:(id)sender {
    [self controller]->copyFilesToViewClick();
}

- (void)commonPathViewClick:(id)sender {
    [self controller]->commonPathViewClick();
}

- (void)customIconViewClick:(id)sender {
    [self controller]->customIconViewClick();
}

- (void)othersViewClick:(id)sender {
    [self controller]->othersViewClick();
}

- (void)addCreateNewFileRule:(id)sender {
    [self controller]->addCreateNewFileRule();
}

- (void)addSendFilesToRule:(id)sender {
    [self controller]->addSendFilesToRule();
}

- (void)addCommonPathRule:(id)sender {
    [self controller]->addCommonPathRule();
}

- (void)addCustomIconRule:(id)sender {
    [self controller]->addCustomIconRule();
}

- (void)addOthersRule:(id)sender {
    [self controller]->addOthersRule();
}

- (void)removeCreateNewFileRule:(id)sender {
    [self controller]->removeCreateNewFileRule();
}

- (void)removeCopyFilesToRule:(id)sender {
    [self controller]->removeCopyFilesToRule();
}

- (void)removeCommondPathRule:(id)sender {
    [self controller]->removeCommondPathRule();
}

- (void)removeCustomIconRule:(id)sender {
    [self controller]->removeCustomIconRule();
}

- (void)removeOthersRule:(id)sender {
    [self controller]->removeOthersRule();
}

- (void)resetCreateNewFileRule:(id)sender {
    [self controller]->resetCreateNewFileRule();
}

- (void)resetCopyFilesToRule:(id)sender {
    [self controller]->resetCopyFilesToRule();
}

- (void)resetCustomIconRule:(id)sender {
    [self controller]->resetCustomIconRule();
}

- (void)resetOthersRule:(id)sender {
    [self controller]->resetOthersRule();
}

- (void)OnOffcheckedStateChangedOfCreateNewFile:(id)sender {
    [self controller]->onOffcheckedStateChangedOfCreateNewFile(rowOf(sender), isOn(sender));
}

- (void)OnOffEnableMainMenuStateChangedOfCreateNewFile:(id)sender {
    [self controller]->onOffEnableMainMenuStateChangedOfCreateNewFile(rowOf(sender), isOn(sender));
}

- (void)OnOffcheckedStateChangedOfCopyTo:(id)sender {
    [self controller]->onOffcheckedStateChangedOfCopyTo(rowOf(sender), isOn(sender));
}

- (void)OnOffcheckedStateChangedOfCustomIcon:(id)sender {
    [self controller]->onOffcheckedStateChangedOfCustomIcon(rowOf(sender), isOn(sender));
}

- (void)OnOffcheckedStateChangedOfOthers:(id)sender {
    [self controller]->onOffcheckedStateChangedOfOthers(rowOf(sender), isOn(sender));
}

- (void)enableAllOfCreateNewFilesClick:(id)sender {
    [self controller]->enableAllOfCreateNewFilesClick();
}

- (void)enableAllOfCustomIconClick:(id)sender {
    [self controller]->enableAllOfCustomIconClick();
}

- (void)enableAllOfOthersClick:(id)sender {
    [self controller]->enableAllOfOthersClick();
}

- (void)selectPath:(id)sender {
    [self controller]->selectPath(rowOf(sender));
}

- (void)copyFilesToViewDoubleClick:(NSTableView *)sender {
    const NSInteger pathColumn = [sender columnWithIdentifier:@"realPath"];
    if ([sender clickedRow] >= 0 && [sender clickedColumn] == pathColumn) {
        [self controller]->selectPath([sender clickedRow]);
    }
}

@end
