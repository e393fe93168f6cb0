#pragma once

#import "front/SettingsViewController.h"

/// What an edit of a list ends with, and the factory lists. The names are fixed.
@interface SettingsViewController (Publishing)

/// A value that no property list can hold writes nothing.
- (void)saveData:(id)value forKey:(NSString *)key;
- (void)setCreateNewFileToSettings;
- (void)setCopyFilesToSettings;
- (void)setCommonPathSettings;
- (void)setCustomIconToSettings;
- (void)setOthersToSettings;

- (void)resetArrOfCreateNewFile;
- (void)resetArrOfCopyFilesTo;
- (void)resetArrOfCustomIcon;
- (void)resetArrOfOthers;

@end

/// The Finder, its extension, the user script and further tools.
@interface SettingsViewController (System)

- (BOOL)isExtensionEnabled;
- (void)promptToEnableExtension;
- (void)openSystemPreferences;
- (void)restartFinderClick:(id)sender;
- (void)restartFinder;
- (void)initializeClick:(id)sender;
- (void)helpServicesOfSystemPreferences:(id)sender;
- (void)openServiceOfSystemPreferences:(id)sender;
- (void)openLink:(LinkButton *)sender;

- (BOOL)checkScriptInstalled;
- (void)doInstallScript;
/// Autoreleased; nil, with a log line, when there is none.
- (id)repairScriptTask;
/// What calls a handler of the script, whichever it is; autoreleased.
- (id)restartFinderEventDescriptor:(NSString *)handlerName;
- (void)openServicesOfSystemPreferences;
- (void)initialize;

/// Nil when the output is not text.
- (NSString *)runCommand:(NSString *)command;
- (BOOL)_appWithBundleIdentifierInstalled:(NSString *)bundleIdentifier;
- (void)getSystemShortcuts:(id)sender;

@end
