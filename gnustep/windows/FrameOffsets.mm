// Wrong: the size of a window that is shown again, as of GNUstep Back 0.29. It asks the window itself how far
// its frame reaches, and window managers leave zeros on one that they have taken off the screen: a panel's
// second opening had black bands above and below. Here a hidden window's frame is that of others of its
// style.

#import "gnustep/windows/FrameOffsets.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#import "gnustep/runtime/MethodReplacement.h"

#include <X11/Xlib.h>

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

Offsets nativeOffsets(id server, SEL command, unsigned int style, Window window) {
    Offsets offsets;
    nativeStyleOffsets(
        server, command, &offsets.left, &offsets.right, &offsets.top, &offsets.bottom, style, window);
    return offsets;
}

bool isHidden(Display *display, Window window) {
    XWindowAttributes attributes;
    return XGetWindowAttributes(display, window, &attributes) != 0 && attributes.map_state == IsUnmapped;
}

/// The X server is asked only where it makes a difference: windows have their offsets computed hundreds of
/// times while a program starts.
Offsets offsetsOf(id server, SEL command, unsigned int style, Window window) {
    const Offsets own = nativeOffsets(server, command, style, window);
    if (window == None || !own.areZero()) {
        return own;
    }
    const Offsets others = nativeOffsets(server, command, style, None);
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
