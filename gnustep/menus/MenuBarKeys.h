#pragma once

#import <AppKit/AppKit.h>

/// Whether this key asks for the menu bar: F10, as in other programs on Linux, or Control-F2, as on macOS.
BOOL TNIsMenuBarKey(NSEvent* event);

/// Opens the first menu of the bar in the event's window, and follows the keyboard from there. NO for any
/// other event, without a bar, and beside a modal window.
BOOL TNOpenMenuBarByKey(NSEvent* event);
