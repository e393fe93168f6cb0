#pragma once

@class NSWindow;

/// Lets windows that come back have the keyboard. Once the display server is there.
void TNInstallWindowActivation();

/// Asks the window manager to bring the window back, minimised or not, to the front, and to give it the
/// keyboard. It does so a little later.
void TNActivateWindow(NSWindow *window);

/// Whether the keyboard is nobody's: not that of any program's window, but the window manager has it.
bool TNKeyboardIsNobodys();
