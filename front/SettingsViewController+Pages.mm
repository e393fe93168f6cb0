#import "front/SettingsViewController+Actions.h"

using tarnwick::Page;
using tarnwick::RuleCategory;

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
