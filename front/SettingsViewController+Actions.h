#pragma once

#import "front/SettingsViewController.h"

@class NoticeButton;
@class PreviewedRule;

/// What the page buttons, and clicks in the tables, send.
@interface SettingsViewController (Pages)

- (void)createNewFilePressed:(id)sender;
- (void)copyFilesToPressed:(id)sender;
- (void)commonPathPressed:(id)sender;
- (void)customIconFolder:(id)sender;
- (void)otherOptionPressed:(id)sender;
- (void)moreAppPressed:(id)sender;

- (void)createNewFileViewClick:(id)sender;
- (void)copyFilesToViewClick:(id)sender;
- (void)commonPathViewClick:(id)sender;
- (void)customIconViewClick:(id)sender;
- (void)othersViewClick:(id)sender;

@end

/// What changes rules. A row's control carries its row as its tag.
@interface SettingsViewController (Rules)

- (void)addCreateNewFileRule:(id)sender;
- (void)addSendFilesToRule:(id)sender;
- (void)addCommonPathRule:(id)sender;
- (void)addCustomIconRule:(id)sender;
- (void)addOthersRule:(id)sender;

- (void)removeCreateNewFileRule:(id)sender;
- (void)removeCopyFilesToRule:(id)sender;
- (void)removeCommondPathRule:(id)sender;
- (void)removeCustomIconRule:(id)sender;
- (void)removeOthersRule:(id)sender;

- (void)resetCreateNewFileRule:(id)sender;
- (void)resetCopyFilesToRule:(id)sender;
- (void)resetCustomIconRule:(id)sender;
- (void)resetOthersRule:(id)sender;

- (void)OnOffcheckedStateChangedOfCreateNewFile:(id)sender;
- (void)OnOffEnableMainMenuStateChangedOfCreateNewFile:(id)sender;
- (void)OnOffcheckedStateChangedOfCopyTo:(id)sender;
- (void)OnOffcheckedStateChangedOfCustomIcon:(id)sender;
- (void)OnOffcheckedStateChangedOfOthers:(id)sender;

- (void)enableAllOfCreateNewFilesClick:(id)sender;
- (void)enableAllOfCustomIconClick:(id)sender;
- (void)enableAllOfOthersClick:(id)sender;

- (void)selectPath:(id)sender;
/// A double click on a row's path chooses its folder.
- (void)copyFilesToViewDoubleClick:(NSTableView *)sender;
- (void)selectCommonPath:(id)sender;
- (void)commonPathViewDoubleClick:(NSTableView *)sender;

@end

/// Files and folders that are dragged in.
@interface SettingsViewController (Dropping)

- (BOOL)takesItemsOn:(NSPasteboard *)pasteboard forCategory:(tarnwick::RuleCategory)category;
- (BOOL)addItemsOn:(NSPasteboard *)pasteboard toCategory:(tarnwick::RuleCategory)category;

@end

@interface SettingsViewController (Tables) <NSTableViewDataSource, NSTableViewDelegate, NSTextFieldDelegate>

/// Of the switch above the category's table, for what is stored for it; and how many rules are on, in words.
- (tarnwick::EnableAllState)enableAllStateOf:(tarnwick::RuleCategory)category stored:(BOOL)stored;
- (NSString *)enabledTextOf:(tarnwick::RuleCategory)category;
/// Says anew what is wrong with the rules in sight; their cells stay.
- (void)remarkOnRowsInSightOf:(tarnwick::RuleCategory)category;

/// The view of a cell; an empty one for a column or row that the list does not have.
- (NSView *)tableViewForCreateNewFile:(NSTableColumn *)column row:(NSInteger)row;
- (NSView *)tableViewForCopyTo:(NSTableColumn *)column row:(NSInteger)row;
- (NSView *)tableViewForCommonPath:(NSTableColumn *)column row:(NSInteger)row;
- (NSView *)tableViewForCustomIcon:(NSTableColumn *)column row:(NSInteger)row;
- (NSView *)tableViewForOthers:(NSTableColumn *)column row:(NSInteger)row;

@end

/// What the menus need beyond the actions of the window.
@interface SettingsViewController (Menus)

/// The category of the page that is shown; nothing on the page of further apps.
- (std::optional<tarnwick::RuleCategory>)shownCategory;
/// The command that is the item's tag, on the list that is shown.
- (void)performRuleCommand:(NSMenuItem *)sender;
- (void)exportSettings:(id)sender;
- (void)importSettings:(id)sender;
/// Marks what is on, the page that is shown among it; disables what cannot be done just now, and says why.
- (BOOL)validateMenuItem:(NSMenuItem *)item;
/// Pops the menu up that the rules and switches make, at the preview button.
- (void)previewMenu:(id)sender;
- (void)showPreviewedRule:(PreviewedRule *)sender;
- (void)takeNoticeStep:(NoticeButton *)sender;
- (void)putNoticeAway:(NoticeButton *)sender;
/// Selects the next row of the page that something is wrong with.
- (void)showNextFault:(id)sender;

@end
