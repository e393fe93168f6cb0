#pragma once

#import <AppKit/AppKit.h>

#include "ui/Page.h"
#include "ui/SettingsController.h"

#include <memory>
#include <optional>

namespace tarnwick {
class OutletWindow;
} // namespace tarnwick

@class FindBar;
@class LinkButton;

/// The controller of the settings window as AppKit sees it: carries the exact selectors that controls, tables
/// and text fields send, whose names are fixed, and hands each to the core in one line. Loading its view sets
/// its outlets; they live as long as the view. A missing one makes the step that needs it do nothing.
@interface SettingsViewController : NSViewController {
@private
    std::unique_ptr<tarnwick::OutletWindow> _window;
    std::unique_ptr<tarnwick::SettingsController> _controller;
    CGFloat _minimumWidth;

    NSTextField *_version;
    NSTabView *_tabView;
    NSButton *_createNewFileButton;
    NSButton *_copyFilesToButton;
    NSButton *_commonPathToButton;
    NSButton *_customIconButton;
    NSButton *_otherOptionButton;
    NSButton *_moreAppButton;
    NSTableView *_createNewFileTableView;
    NSTableView *_copyFilesToTableView;
    NSTableView *_commonPathTableView;
    NSTableView *_customIconTableView;
    NSTableView *_othersTableView;
    NSButton *_removeCreateNewFileViewButton;
    NSButton *_removeCopyFilesToViewButton;
    NSButton *_removeCommonPathViewButton;
    NSButton *_removeCustomIconViewButton;
    NSButton *_removeOthersViewButton;
    NSButton *_restartFinderButton;
    NSButton *_helpButton;
    NSTextField *_tipOfkillFinder;
    /// Made when it is first needed.
    FindBar *_findBar;
    BOOL _isFinding;
    NSButton *_previewButton;
}

@property (nonatomic, assign) NSTextField *Version;
@property (nonatomic, assign) NSTabView *tabView;
@property (nonatomic, assign) NSButton *createNewFileButton;
@property (nonatomic, assign) NSButton *copyFilesToButton NS_RETURNS_NOT_RETAINED;
@property (nonatomic, assign) NSButton *commonPathToButton;
@property (nonatomic, assign) NSButton *customIconButton;
@property (nonatomic, assign) NSButton *otherOptionButton;
@property (nonatomic, assign) NSButton *moreAppButton;
@property (nonatomic, assign) NSTableView *createNewFileTableView;
@property (nonatomic, assign) NSTableView *copyFilesToTableView NS_RETURNS_NOT_RETAINED;
@property (nonatomic, assign) NSTableView *commonPathTableView;
@property (nonatomic, assign) NSTableView *customIconTableView;
@property (nonatomic, assign) NSTableView *othersTableView;
@property (nonatomic, assign) NSButton *removeCreateNewFileViewButton;
@property (nonatomic, assign) NSButton *removeCopyFilesToViewButton;
@property (nonatomic, assign) NSButton *removeCommonPathViewButton;
@property (nonatomic, assign) NSButton *removeCustomIconViewButton;
@property (nonatomic, assign) NSButton *removeOthersViewButton;
@property (nonatomic, assign) NSButton *restartFinderButton;
@property (nonatomic, assign) NSButton *helpButton;
@property (nonatomic, retain) NSTextField *tipOfkillFinder;
@property (nonatomic, assign) NSButton *previewButton;

/// Refuses to run, and ends the process, when the application was started as a login item.
- (instancetype)initWithPorts:(const tarnwick::Ports &)ports;

/// The least that the view needs; known once the view is loaded.
- (CGFloat)minimumWidth;

- (void)start;
- (void)appChanged:(NSNotification *)notification;
- (void)applicationActivated;

/// The name or note being edited counts as it stands, now that its window closes or the application ends.
- (void)endEditing:(NSNotification *)notification;

/// What undo kept of template files goes with the application.
- (void)removeHeldFiles:(NSNotification *)notification;

@end

@interface SettingsViewController (Outlets)

- (NSTableView *)tableOf:(tarnwick::RuleCategory)category;
- (NSButton *)removeButtonOf:(tarnwick::RuleCategory)category;
- (void)setTable:(NSTableView *)table
    removeButton:(NSButton *)button
      ofCategory:(tarnwick::RuleCategory)category;
/// The category whose table this is; nothing when it is none of them.
- (std::optional<tarnwick::RuleCategory>)categoryOf:(id)table;

- (NSButton *)buttonOf:(tarnwick::Page)page;
- (void)setButton:(NSButton *)button ofPage:(tarnwick::Page)page;

@end
