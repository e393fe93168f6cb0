// Missing: the keyboard of a window that the window manager brings back, as of GNUstep Back 0.29: a window
// that was to stay in sight is shown again without it; and it is asked for as of the last event, so that a
// window manager that has taken it for itself a moment later, while the user went from window to window,
// keeps it.

#import "gnustep/windows/WindowActivation.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#import "gnustep/runtime/MethodReplacement.h"

#include <X11/Xlib.h>

namespace {

/// As on behalf of the user: from a program itself a window manager may take it for pushing in.
constexpr long asUser = 2;

using SetInputFocus = void (*)(id self, SEL command, int window);
SetInputFocus nativeSetInputFocus = nullptr;

Window windowOf(GSDisplayServer *server, int number) {
    return reinterpret_cast<Window>([server windowDevice:number]);
}

/// From nobody the keyboard is taken whenever that was; another program's window keeps it.
void setInputFocus(id self, SEL command, int window) {
    nativeSetInputFocus(self, command, window);
    if (window != 0 && TNKeyboardIsNobodys()) {
        XSetInputFocus(
            static_cast<Display *>([self serverDevice]), windowOf(self, window), RevertToParent, CurrentTime);
    }
}

} // namespace

void TNInstallWindowActivation() {
    if (!nativeSetInputFocus) {
        nativeSetInputFocus =
            TNReplaceMethod([GSCurrentServer() class], @selector(setinputfocus:), setInputFocus);
    }
}

void TNActivateWindow(NSWindow *window) {
    GSDisplayServer *server = GSServerForWindow(window);
    auto *display = static_cast<Display *>([server serverDevice]);
    XEvent request{};
    request.xclient.type = ClientMessage;
    request.xclient.window = windowOf(server, static_cast<int>([window windowNumber]));
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
