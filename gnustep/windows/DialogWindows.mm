// Wrong: what a window manager takes panels for, as of GNUstep Back 0.29: for windows like any other, which
// one that tiles makes as large as half the screen, and which others list beside the main window.

#import "gnustep/windows/DialogWindows.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#import "gnustep/runtime/MethodReplacement.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

using SetWindowLevel = void (*)(id self, SEL command, int level, int window);
SetWindowLevel nativeSetWindowLevel = nullptr;

/// Not of what lies above all windows, such as menus.
bool isDialog(int level, int window) {
    return level == NSModalPanelWindowLevel ||
           (level == NSNormalWindowLevel &&
               [[NSApp windowWithWindowNumber:window] isKindOfClass:[NSPanel class]]);
}

/// Comes before a window is first put onto the screen.
void setWindowLevel(id self, SEL command, int level, int window) {
    nativeSetWindowLevel(self, command, level, window);
    if (!isDialog(level, window)) {
        return;
    }
    auto *display = static_cast<Display *>([self serverDevice]);
    const Atom dialog = XInternAtom(display, "_NET_WM_WINDOW_TYPE_DIALOG", False);
    XChangeProperty(display, reinterpret_cast<Window>([self windowDevice:window]),
        XInternAtom(display, "_NET_WM_WINDOW_TYPE", False), XA_ATOM, 32, PropModeReplace,
        reinterpret_cast<const unsigned char *>(&dialog), 1);
}

} // namespace

void TNInstallDialogWindows() {
    if (!nativeSetWindowLevel) {
        nativeSetWindowLevel =
            TNReplaceMethod([GSCurrentServer() class], @selector(setwindowlevel::), setWindowLevel);
    }
}
