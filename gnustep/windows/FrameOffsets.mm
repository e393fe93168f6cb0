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

bool isHidden(Display *display, Window window) {
    XWindowAttributes attributes;
    return XGetWindowAttributes(display, window, &attributes) != 0 && attributes.map_state == IsUnmapped;
}

void styleOffsets(id self, SEL command, float *left, float *right, float *top, float *bottom,
    unsigned int style, Window window) {
    auto *display = static_cast<Display *>([self serverDevice]);
    const Window asked = window != None && isHidden(display, window) ? None : window;
    nativeStyleOffsets(self, command, left, right, top, bottom, style, asked);
}

} // namespace

void TNInstallFrameOffsets() {
    if (!nativeStyleOffsets) {
        nativeStyleOffsets =
            TNReplaceMethod([GSCurrentServer() class], @selector(styleoffsets:: :: ::), styleOffsets);
    }
}
