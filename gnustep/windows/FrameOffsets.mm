// Wrong: how far the frame that the window manager draws reaches around a window, as of GNUstep Back 0.29. It
// asks the window itself, and window managers leave zeros on one that they have taken off the screen: a
// panel's second opening had black bands above and below. Here a hidden window's frame is that of others of
// its style. Where the window manager says nothing GNUstep guesses, or takes what a tiling one made of a
// trial for a frame of a thousand points: clicks went beside what they were meant for, and each start made
// the window smaller. Here such a frame has no width.

#import "gnustep/windows/FrameOffsets.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#import "gnustep/runtime/MethodReplacement.h"

#include <X11/Xlib.h>

#include <algorithm>

namespace {

using StyleOffsets = void (*)(id self, SEL command, float *left, float *right, float *top, float *bottom,
    unsigned int style, Window window);
StyleOffsets nativeStyleOffsets = nullptr;

struct Offsets {
    float left = 0;
    float right = 0;
    float top = 0;
    float bottom = 0;

    [[nodiscard]] bool areZero() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
};

/// Whether GNUstep has asked the window manager about each style, with success; it leaves the answers there.
bool hasAnswers(Display *display) {
    const Atom name = XInternAtom(display, "_GNUSTEP_FRAME_OFFSETS", False);
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *values = nullptr;
    XGetWindowProperty(display, DefaultRootWindow(display), name, 0, 0, False, AnyPropertyType, &type,
        &format, &count, &left, &values);
    XFree(values);
    return type != None;
}

/// As GNUstep makes it up, for a style with a title.
bool isGuess(const Offsets &offsets) {
    constexpr float side = 4;
    constexpr float title = 20;
    constexpr float resizableEdge = 7;
    return offsets.left == side && offsets.right == side && offsets.top == title &&
           (offsets.bottom == side || offsets.bottom == resizableEdge);
}

/// No window manager draws this much.
bool isTooLarge(const Offsets &offsets) {
    constexpr float most = 200;
    return std::max({offsets.left, offsets.right, offsets.top, offsets.bottom}) > most;
}

/// Of the window, or without one of its style; zeros where GNUstep does not know.
Offsets knownOffsets(id server, SEL command, unsigned int style, Window window) {
    static const bool hasAsked = hasAnswers(static_cast<Display *>([server serverDevice]));
    Offsets offsets;
    nativeStyleOffsets(
        server, command, &offsets.left, &offsets.right, &offsets.top, &offsets.bottom, style, window);
    return isTooLarge(offsets) || (!hasAsked && isGuess(offsets)) ? Offsets{} : offsets;
}

bool isHidden(Display *display, Window window) {
    XWindowAttributes attributes;
    return XGetWindowAttributes(display, window, &attributes) != 0 && attributes.map_state == IsUnmapped;
}

/// The X server is asked only where it makes a difference: windows have their offsets computed hundreds of
/// times while a program starts.
Offsets offsetsOf(id server, SEL command, unsigned int style, Window window) {
    const Offsets own = knownOffsets(server, command, style, window);
    if (window == None || !own.areZero()) {
        return own;
    }
    const Offsets others = knownOffsets(server, command, style, None);
    auto *display = static_cast<Display *>([server serverDevice]);
    return !others.areZero() && isHidden(display, window) ? others : own;
}

void styleOffsets(id self, SEL command, float *left, float *right, float *top, float *bottom,
    unsigned int style, Window window) {
    const Offsets offsets = offsetsOf(self, command, style, window);
    *left = offsets.left;
    *right = offsets.right;
    *top = offsets.top;
    *bottom = offsets.bottom;
}

} // namespace

void TNInstallFrameOffsets() {
    if (!nativeStyleOffsets) {
        nativeStyleOffsets =
            TNReplaceMethod([GSCurrentServer() class], @selector(styleoffsets:: :: ::), styleOffsets);
    }
}
