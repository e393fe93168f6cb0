// Missing: the return of a window that the window manager has minimised, as of GNUstep Back 0.29, which shows
// it again without the keyboard.

#import "gnustep/windows/WindowActivation.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#include <X11/Xlib.h>

namespace {

/// As on behalf of the user: from a program itself a window manager may take it for pushing in.
constexpr long asUser = 2;

} // namespace

void TNActivateWindow(NSWindow *window) {
    GSDisplayServer *server = GSServerForWindow(window);
    auto *display = static_cast<Display *>([server serverDevice]);
    XEvent request{};
    request.xclient.type = ClientMessage;
    request.xclient.window =
        reinterpret_cast<Window>([server windowDevice:static_cast<int>([window windowNumber])]);
    request.xclient.message_type = XInternAtom(display, "_NET_ACTIVE_WINDOW", False);
    request.xclient.format = 32;
    request.xclient.data.l[0] = asUser;
    request.xclient.data.l[1] = CurrentTime;
    XSendEvent(display, DefaultRootWindow(display), False, SubstructureRedirectMask | SubstructureNotifyMask,
        &request);
    XFlush(display);
}

bool TNKeyboardIsNobodys() {
    auto *display = static_cast<Display *>([GSCurrentServer() serverDevice]);
    Window focus = None;
    int revertsTo = 0;
    XGetInputFocus(display, &focus, &revertsTo);
    if (focus == None || focus == PointerRoot || focus == DefaultRootWindow(display)) {
        return true;
    }
    // A window manager keeps it in one that it does not manage itself.
    XWindowAttributes attributes{};
    return XGetWindowAttributes(display, focus, &attributes) && attributes.override_redirect;
}
