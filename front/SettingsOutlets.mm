#import "front/SettingsOutlets.h"

@implementation SettingsOutlets

- (id)init {
    self = [super init];
    if (self) {
        _pageButtons = [[NSMutableArray alloc] init];
        _tables = [[NSMutableArray alloc] init];
        _removeButtons = [[NSMutableArray alloc] init];
    }
    return self;
}

- (void)dealloc {
    [_version release];
    [_tabView release];
    [_pageButtons release];
    [_tables release];
    [_removeButtons release];
    [_restartFinderButton release];
    [_helpButton release];
    [_tipOfkillFinder release];
    [super dealloc];
}

- (void)setVersion:(NSTextField *)label {
    [label retain];
    [_version release];
    _version = label;
    _adapters.version = tarnwick::makeLabelControl(label);
}

- (void)setTabView:(NSTabView *)tabView {
    [tabView retain];
    [_tabView release];
    _tabView = tabView;
    _adapters.tabView = tarnwick::makeTabControl(tabView);
    _adapters.rowEditing = tarnwick::makeRowEditing(tabView);
}

- (void)addPageButton:(NSButton *)button {
    [_pageButtons addObject:button];
    _adapters.pageButtons.push_back(tarnwick::makeButtonControl(button));
}

- (void)addTable:(NSTableView *)table removeButton:(NSButton *)button {
    [_tables addObject:table];
    [_removeButtons addObject:button];
    _adapters.tables.push_back(tarnwick::makeTableControl(table));
    _adapters.removeButtons.push_back(tarnwick::makeButtonControl(button));
}

- (void)setRestartFinderButton:(NSButton *)button {
    [button retain];
    [_restartFinderButton release];
    _restartFinderButton = button;
    _adapters.restartFinderButton = tarnwick::makeButtonControl(button);
}

- (void)setHelpButton:(NSButton *)button {
    [button retain];
    [_helpButton release];
    _helpButton = button;
    _adapters.helpButton = tarnwick::makeButtonControl(button);
}

- (void)setTipOfkillFinder:(NSTextField *)label {
    [label retain];
    [_tipOfkillFinder release];
    _tipOfkillFinder = label;
}

- (NSTextField *)Version {
    return _version;
}

- (NSTabView *)tabView {
    return _tabView;
}

- (NSButton *)createNewFileButton {
    return [_pageButtons objectAtIndex:0];
}

- (NSButton *)copyFilesToButton {
    return [_pageButtons objectAtIndex:1];
}

- (NSButton *)commonPathToButton {
    return [_pageButtons objectAtIndex:2];
}

- (NSButton *)customIconButton {
    return [_pageButtons objectAtIndex:3];
}

- (NSButton *)otherOptionButton {
    return [_pageButtons objectAtIndex:4];
}

- (NSButton *)moreAppButton {
    return [_pageButtons objectAtIndex:5];
}

- (NSTableView *)createNewFileTableView {
    return [self tableOf:tarnwick::RuleCategory::createNewFile];
}

- (NSTableView *)copyFilesToTableView {
    return [self tableOf:tarnwick::RuleCategory::copyFilesTo];
}

- (NSTableView *)commonPathTableView {
    return [self tableOf:tarnwick::RuleCategory::commonPath];
}

- (NSTableView *)customIconTableView {
    return [self tableOf:tarnwick::RuleCategory::customIcon];
}

- (NSTableView *)othersTableView {
    return [self tableOf:tarnwick::RuleCategory::others];
}

- (NSButton *)removeCreateNewFileViewButton {
    return [self removeButtonOf:tarnwick::RuleCategory::createNewFile];
}

- (NSButton *)removeCopyFilesToViewButton {
    return [self removeButtonOf:tarnwick::RuleCategory::copyFilesTo];
}

- (NSButton *)removeCommonPathViewButton {
    return [self removeButtonOf:tarnwick::RuleCategory::commonPath];
}

- (NSButton *)removeCustomIconViewButton {
    return [self removeButtonOf:tarnwick::RuleCategory::customIcon];
}

- (NSButton *)removeOthersViewButton {
    return [self removeButtonOf:tarnwick::RuleCategory::others];
}

- (NSButton *)restartFinderButton {
    return _restartFinderButton;
}

- (NSButton *)helpButton {
    return _helpButton;
}

- (NSTextField *)tipOfkillFinder {
    return _tipOfkillFinder;
}

- (NSTableView *)tableOf:(tarnwick::RuleCategory)category {
    return [_tables objectAtIndex:static_cast<NSUInteger>(category)];
}

- (NSButton *)removeButtonOf:(tarnwick::RuleCategory)category {
    return [_removeButtons objectAtIndex:static_cast<NSUInteger>(category)];
}

- (BOOL)getCategory:(tarnwick::RuleCategory *)category ofTable:(id)table {
    const NSUInteger index = [_tables indexOfObjectIdenticalTo:table];
    if (index == NSNotFound) {
        return NO;
    }
    *category = tarnwick::allRuleCategories[index];
    return YES;
}

- (tarnwick::Outlets)coreOutlets {
    return _adapters.outlets();
}

@end
