#pragma once

// The methods that AppKit and Foundation have on macOS and the support layer adds here. The file that defines
// each says what is missing and since when.

#import <AppKit/AppKit.h>

#import "TNConstants.h"

@class CALayer;

// Layers.mm
@interface NSView (TNLayers)
- (void)setWantsLayer:(BOOL)wantsLayer;
- (BOOL)wantsLayer;
/// Nil until `setWantsLayer:YES`.
- (CALayer *)layer;
@end

// LayoutDirection.mm
@interface NSApplication (TNLayoutDirection)
- (NSUserInterfaceLayoutDirection)userInterfaceLayoutDirection;
@end

// Identifiers.mm
@interface NSView (TNIdentifiers)
- (void)setIdentifier:(NSString *)identifier;
- (NSString *)identifier;
@end

// Appearance.mm
@interface NSView (TNAppearance)
/// The system's, light or dark, in every view.
- (NSAppearance *)effectiveAppearance;
@end

// ButtonImages.mm
@interface NSImage (TNTemplates)
/// Drawn by buttons in the colour of their titles; only how opaque its pixels are counts.
- (void)setTemplate:(BOOL)isTemplate;
- (BOOL)isTemplate;
@end

// WindowTabs.mm
@interface NSWindow (TNTabs)
/// Without effect: no window has tabs.
- (void)setTabbingMode:(NSWindowTabbingMode)mode;
@end

// Accessibility.mm
@interface NSView (TNAccessibility)
/// Kept for whoever asks; no assistive technology does.
- (void)setAccessibilityLabel:(NSString *)label;
- (NSString *)accessibilityLabel;
- (void)setAccessibilityHelp:(NSString *)help;
- (NSString *)accessibilityHelp;
- (void)setAccessibilitySelected:(BOOL)selected;
- (BOOL)isAccessibilitySelected;
@end

@interface NSButton (TNAccessibility)
/// A number: 0 off, 1 on, 2 mixed.
- (id)accessibilityValue;
@end

// ViewControllers.mm
@interface NSViewController (TNViewDidLoad)
- (void)viewDidLoad;
@end

// FolderLocations.mm
@interface NSFileManager (TNGroupContainers)
/// Created when missing; nil for an identifier that is no file name.
- (NSURL *)containerURLForSecurityApplicationGroupIdentifier:(NSString *)identifier;
@end

// SuiteDefaults.mm
@interface NSUserDefaults (TNSuites)
/// Nil without a name. All handles of a name share their state.
- (instancetype)initWithSuiteName:(NSString *)name;
@end

// PopUpMenus.mm
@interface NSMenu (TNPopUp)
/// Returns when the menu is closed again: YES after the action of the item that was chosen. The place is that
/// of the item's upper left corner, the menu's without one; it is the screen's without a view.
- (BOOL)popUpMenuPositioningItem:(NSMenuItem *)item atLocation:(NSPoint)location inView:(NSView *)view;
@end

// HelpMenu.mm
@interface NSApplication (TNHelpMenu)
- (void)setHelpMenu:(NSMenu *)menu;
- (NSMenu *)helpMenu;
@end
