#pragma once

// Missing: constants under the names that AppKit gave them with macOS 10.12 and later, as of GNUstep GUI 0.29
// and Base 1.28. Each stands for the same value under its older name.

#import <AppKit/AppKit.h>

static const NSBezelStyle NSBezelStyleRounded = NSRoundedBezelStyle;

static const NSButtonType NSButtonTypeSwitch = NSSwitchButton;

static const NSAlertStyle NSAlertStyleWarning = NSWarningAlertStyle;

static const NSEventType NSEventTypeKeyDown = NSKeyDown;
static const NSEventType NSEventTypeApplicationDefined = NSApplicationDefined;

static const NSUInteger NSEventModifierFlagShift = NSShiftKeyMask;
static const NSUInteger NSEventModifierFlagControl = NSControlKeyMask;
static const NSUInteger NSEventModifierFlagOption = NSAlternateKeyMask;
static const NSUInteger NSEventModifierFlagCommand = NSCommandKeyMask;

/// Not for a screen of its own: no window here ever is.
static const NSWindowCollectionBehavior NSWindowCollectionBehaviorFullScreenNone = 1 << 9;

/// See WindowTabs.mm.
typedef NSInteger NSWindowTabbingMode;
static const NSWindowTabbingMode NSWindowTabbingModeDisallowed = 2;

/// See TNTableView+Drawing.mm.
typedef NSInteger NSTableViewStyle;
static const NSTableViewStyle NSTableViewStylePlain = 4;

static const NSCompositingOperation NSCompositingOperationClear = NSCompositeClear;
static const NSCompositingOperation NSCompositingOperationSourceOver = NSCompositeSourceOver;

/// The folder of the scripts that a program may run; see FolderLocations.mm.
static const NSSearchPathDirectory NSApplicationScriptsDirectory = 23;

/// Posted by a workspace that knows of other programs' activations. This one does not: they are never posted.
extern NSString *const NSWorkspaceDidActivateApplicationNotification;
extern NSString *const NSWorkspaceDidDeactivateApplicationNotification;
