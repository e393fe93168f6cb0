#pragma once

#import <AppKit/AppKit.h>

namespace tarnwick {
class SettingsViewController;
struct Platform;
} // namespace tarnwick

@class SettingsOutlets;

/// The controller of the settings window as AppKit sees it: carries the exact selectors that controls, tables
/// and text fields send, and forwards each to the C++ controller in one line.
@interface SettingsViewController : NSViewController {
@private
    tarnwick::SettingsViewController *_controller;
    SettingsOutlets *_outlets;
}

/// Refuses to run, and ends the process, when the application was started as a login item.
- (instancetype)initWithPlatform:(const tarnwick::Platform &)platform;

/// The window's controls; retained. Set before `awakeFromNib`.
- (void)setOutlets:(SettingsOutlets *)outlets;
- (SettingsOutlets *)outlets;

/// The name or note being edited counts as it stands, now that its window closes or the application ends.
- (void)endEditing:(NSNotification *)notification;

/// Valid for the life of the receiver.
- (tarnwick::SettingsViewController *)controller;

@end

@interface SettingsViewController (Actions)

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

/// The sender's tag is the row whose folder is chosen.
- (void)selectPath:(id)sender;
/// A double click on a row's path chooses its folder.
- (void)copyFilesToViewDoubleClick:(NSTableView *)sender;

@end

@interface SettingsViewController (Integration)

- (void)start;
- (void)appChanged:(NSNotification *)notification;

- (BOOL)isExtensionEnabled;
- (void)promptToEnableExtension;
- (void)openSystemPreferences;
- (void)restartFinderClick:(id)sender;
- (void)restartFinder;
- (void)initializeClick:(id)sender;
- (void)helpServicesOfSystemPreferences:(id)sender;
- (void)openServiceOfSystemPreferences:(id)sender;

- (BOOL)checkScriptInstalled;
- (void)doInstallScript;
- (void)openServicesOfSystemPreferences;
- (void)initialize;

/// Nil when the output is not text.
- (NSString *)runCommand:(NSString *)command;
- (BOOL)_appWithBundleIdentifierInstalled:(NSString *)bundleIdentifier;
- (void)getSystemShortcuts:(id)sender;

@end

/// What the menus need beyond the actions of the window.
@interface SettingsViewController (Menus)

/// Presses the add button of the page that is shown; the page of further apps has none.
- (void)addRuleOfCurrentPage:(id)sender;
/// One place up or down in the list of the page that is shown.
- (void)moveSelectedRuleUp:(id)sender;
- (void)moveSelectedRuleDown:(id)sender;
/// Marks the script helper's item while the script is installed; disables what cannot be done just now.
- (BOOL)validateMenuItem:(NSMenuItem *)item;

@end

@interface SettingsViewController (Tables) <NSTableViewDataSource, NSTableViewDelegate, NSTextFieldDelegate>
@end
