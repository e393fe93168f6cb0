#pragma once

#import <AppKit/AppKit.h>

#include "front/ControlAdapters.h"
#include "ui/Outlets.h"

/// The controls of the settings window by the names of its outlets, kept alive together with the adapters
/// through which the core reaches them. Whoever builds the window fills this in.
@interface SettingsOutlets : NSObject {
@private
    NSTextField *_version;
    NSTabView *_tabView;
    NSMutableArray *_pageButtons;
    NSMutableArray *_tables;
    NSMutableArray *_removeButtons;
    NSButton *_restartFinderButton;
    NSButton *_helpButton;
    NSTextField *_tipOfkillFinder;
    tarnwick::ControlAdapters _adapters;
}

- (void)setVersion:(NSTextField *)label;
- (void)setTabView:(NSTabView *)tabView;
/// In page order, one call a page.
- (void)addPageButton:(NSButton *)button;
/// In category order, one call a category.
- (void)addTable:(NSTableView *)table removeButton:(NSButton *)button;
- (void)setRestartFinderButton:(NSButton *)button;
- (void)setHelpButton:(NSButton *)button;
- (void)setTipOfkillFinder:(NSTextField *)label;

- (NSTextField *)Version;
- (NSTabView *)tabView;
- (NSButton *)createNewFileButton;
/// Not a copy, whatever its name begins with.
- (NSButton *)copyFilesToButton NS_RETURNS_NOT_RETAINED;
- (NSButton *)commonPathToButton;
- (NSButton *)customIconButton;
- (NSButton *)otherOptionButton;
- (NSButton *)moreAppButton;
- (NSTableView *)createNewFileTableView;
- (NSTableView *)copyFilesToTableView NS_RETURNS_NOT_RETAINED;
- (NSTableView *)commonPathTableView;
- (NSTableView *)customIconTableView;
- (NSTableView *)othersTableView;
- (NSButton *)removeCreateNewFileViewButton;
- (NSButton *)removeCopyFilesToViewButton;
- (NSButton *)removeCommonPathViewButton;
- (NSButton *)removeCustomIconViewButton;
- (NSButton *)removeOthersViewButton;
- (NSButton *)restartFinderButton;
- (NSButton *)helpButton;
- (NSTextField *)tipOfkillFinder;

- (NSTableView *)tableOf:(tarnwick::RuleCategory)category;
- (NSButton *)removeButtonOf:(tarnwick::RuleCategory)category;
/// The category whose table this is; false when it is none of the five.
- (BOOL)getCategory:(tarnwick::RuleCategory *)category ofTable:(id)table;

/// The same controls as the core sees them; valid for the life of the receiver.
- (tarnwick::Outlets)coreOutlets;

@end
