#pragma once

// Missing: constants under the names that AppKit gave them with macOS 10.12 and later, as of GNUstep GUI 0.29
// and Base 1.28. Each stands for the same value under its older name.

#import <AppKit/AppKit.h>

static const NSBezelStyle NSBezelStyleRounded = NSRoundedBezelStyle;
static const NSBezelStyle NSBezelStyleRegularSquare = NSRegularSquareBezelStyle;
static const NSBezelStyle NSBezelStyleShadowlessSquare = NSShadowlessSquareBezelStyle;
static const NSBezelStyle NSBezelStyleSmallSquare = NSSmallSquareBezelStyle;
static const NSBezelStyle NSBezelStyleTexturedRounded = NSTexturedRoundedBezelStyle;
static const NSBezelStyle NSBezelStyleRoundRect = NSRoundRectBezelStyle;
static const NSBezelStyle NSBezelStyleInline = NSRecessedBezelStyle;
static const NSBezelStyle NSBezelStyleHelpButton = NSHelpButtonBezelStyle;

static const NSButtonType NSButtonTypeMomentaryLight = NSMomentaryLightButton;
static const NSButtonType NSButtonTypeMomentaryPushIn = NSMomentaryPushInButton;
static const NSButtonType NSButtonTypeMomentaryChange = NSMomentaryChangeButton;
static const NSButtonType NSButtonTypePushOnPushOff = NSPushOnPushOffButton;
static const NSButtonType NSButtonTypeToggle = NSToggleButton;
static const NSButtonType NSButtonTypeSwitch = NSSwitchButton;
static const NSButtonType NSButtonTypeRadio = NSRadioButton;
static const NSButtonType NSButtonTypeOnOff = NSOnOffButton;

static const NSAlertStyle NSAlertStyleWarning = NSWarningAlertStyle;
static const NSAlertStyle NSAlertStyleInformational = NSInformationalAlertStyle;
static const NSAlertStyle NSAlertStyleCritical = NSCriticalAlertStyle;

static const NSEventType NSEventTypeLeftMouseDown = NSLeftMouseDown;
static const NSEventType NSEventTypeLeftMouseUp = NSLeftMouseUp;
static const NSEventType NSEventTypeLeftMouseDragged = NSLeftMouseDragged;
static const NSEventType NSEventTypeRightMouseDown = NSRightMouseDown;
static const NSEventType NSEventTypeRightMouseUp = NSRightMouseUp;
static const NSEventType NSEventTypeMouseMoved = NSMouseMoved;
static const NSEventType NSEventTypeKeyDown = NSKeyDown;
static const NSEventType NSEventTypeKeyUp = NSKeyUp;
static const NSEventType NSEventTypeFlagsChanged = NSFlagsChanged;
static const NSEventType NSEventTypeApplicationDefined = NSApplicationDefined;
static const NSEventType NSEventTypePeriodic = NSPeriodic;
static const NSEventType NSEventTypeScrollWheel = NSScrollWheel;

static const NSUInteger NSEventMaskLeftMouseDown = NSLeftMouseDownMask;
static const NSUInteger NSEventMaskLeftMouseUp = NSLeftMouseUpMask;
static const NSUInteger NSEventMaskLeftMouseDragged = NSLeftMouseDraggedMask;
static const NSUInteger NSEventMaskKeyDown = NSKeyDownMask;
static const NSUInteger NSEventMaskPeriodic = NSPeriodicMask;
static const NSUInteger NSEventMaskAny = NSAnyEventMask;

static const NSUInteger NSEventModifierFlagCapsLock = NSAlphaShiftKeyMask;
static const NSUInteger NSEventModifierFlagShift = NSShiftKeyMask;
static const NSUInteger NSEventModifierFlagControl = NSControlKeyMask;
static const NSUInteger NSEventModifierFlagOption = NSAlternateKeyMask;
static const NSUInteger NSEventModifierFlagCommand = NSCommandKeyMask;
static const NSUInteger NSEventModifierFlagNumericPad = NSNumericPadKeyMask;
static const NSUInteger NSEventModifierFlagFunction = NSFunctionKeyMask;
static const NSUInteger NSEventModifierFlagDeviceIndependentFlagsMask = 0xffff0000U;

static const NSCompositingOperation NSCompositingOperationClear = NSCompositeClear;
static const NSCompositingOperation NSCompositingOperationCopy = NSCompositeCopy;
static const NSCompositingOperation NSCompositingOperationSourceOver = NSCompositeSourceOver;
static const NSCompositingOperation NSCompositingOperationSourceIn = NSCompositeSourceIn;
static const NSCompositingOperation NSCompositingOperationSourceAtop = NSCompositeSourceAtop;

static const NSBitmapImageFileType NSBitmapImageFileTypeTIFF = NSTIFFFileType;
static const NSBitmapImageFileType NSBitmapImageFileTypeJPEG = NSJPEGFileType;
static const NSBitmapImageFileType NSBitmapImageFileTypePNG = NSPNGFileType;

/// The folder of the scripts that a program may run; see FolderLocations.mm.
static const NSSearchPathDirectory NSApplicationScriptsDirectory = 23;

/// Posted by a workspace that knows of other programs' activations. This one does not: they are never posted.
extern NSString *const NSWorkspaceDidActivateApplicationNotification;
extern NSString *const NSWorkspaceDidDeactivateApplicationNotification;
extern NSString *const NSWorkspaceApplicationKey;
