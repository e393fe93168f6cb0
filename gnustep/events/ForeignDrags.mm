// Wrong: files dragged from other programs, as of GNUstep Back 0.29. Its windows announce a version of the
// protocol that many of these take no notice of, and its pasteboard server does not get at what they drag.
// Here the version is the next one, and a drag from outside has a pasteboard of its own, with the files in it
// and nothing else.

#import "gnustep/events/ForeignDrags.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>
#import <GNUstepGUI/GSDragView.h>

#import "gnustep/runtime/MethodReplacement.h"

#include "gnustep/events/AddressList.h"
#include "gnustep/events/DraggedAddresses.h"

#include <X11/Xatom.h>

#include <unistd.h>

namespace {

constexpr Atom announcedVersion = 3;

using ResetTypes = void (*)(id self, SEL command, NSWindow *window);
using SetUp = void (*)(id self, SEL command, XEvent *event);
using Update = void (*)(id self, SEL command, NSEvent *event);
ResetTypes nativeResetTypes = nullptr;
SetUp nativeSetUp = nullptr;
Update nativeUpdate = nullptr;

Display *display() {
    return static_cast<Display *>([GSCurrentServer() serverDevice]);
}

/// Puts our version in front of the types that the window has been given.
void resetTypes(id self, SEL command, NSWindow *window) {
    nativeResetTypes(self, command, window);
    const auto ident = reinterpret_cast<Window>([self windowDevice:static_cast<int>([window windowNumber])]);
    const Atom aware = XInternAtom(display(), "XdndAware", False);
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    if (XGetWindowProperty(display(), ident, aware, 0, 1024, False, XA_ATOM, &type, &format, &count, &left,
            &data) == Success &&
        count > 0) {
        reinterpret_cast<Atom *>(data)[0] = announcedVersion;
        XChangeProperty(display(), ident, aware, XA_ATOM, 32, PropModeReplace, data, static_cast<int>(count));
    }
    if (data) {
        XFree(data);
    }
}

/// Of a name that no other program has: what stands on a shared one would be the drag's for all of them.
NSPasteboard *pasteboardWithFiles(NSArray *paths) {
    NSPasteboard *pasteboard =
        [NSPasteboard pasteboardWithName:[NSString stringWithFormat:@"Drag to %d", getpid()]];
    NSArray *types = [paths count] > 0 ? [NSArray arrayWithObject:NSFilenamesPboardType] : [NSArray array];
    [pasteboard declareTypes:types owner:nil];
    if ([paths count] > 0) {
        [pasteboard setPropertyList:paths forType:NSFilenamesPboardType];
    }
    return pasteboard;
}

} // namespace

@interface GSDragView (TNForeignDrags)
- (void)tnSetPasteboard:(NSPasteboard *)pasteboard;
- (void)tnOfferCopying;
@end

@implementation GSDragView (TNForeignDrags)

- (void)tnSetPasteboard:(NSPasteboard *)pasteboard {
    [dragPasteboard autorelease];
    dragPasteboard = [pasteboard retain];
}

- (void)tnOfferCopying {
    dragMask |= NSDragOperationCopy;
}

@end

namespace {

void setUp(id self, SEL command, XEvent *event) {
    nativeSetUp(self, command, event);
    NSMutableArray *paths = [NSMutableArray array];
    for (const auto &path : TNPathsInAddresses(TNDraggedAddresses(display(), event->xclient))) {
        // Nil for one that is no UTF-8.
        if (NSString *text = [NSString stringWithUTF8String:path.c_str()]) {
            [paths addObject:text];
        }
    }
    [self tnSetPasteboard:pasteboardWithFiles(paths)];
}

/// The other program names the operation that it would like best; a copy is always possible.
void update(id self, SEL command, NSEvent *event) {
    nativeUpdate(self, command, event);
    [self tnOfferCopying];
}

} // namespace

void TNInstallForeignDrags() {
    if (nativeResetTypes) {
        return;
    }
    nativeResetTypes =
        TNReplaceMethod([GSCurrentServer() class], @selector(_resetDragTypesForWindow:), resetTypes);
    Class dragView = NSClassFromString(@"XGDragView");
    nativeSetUp = TNReplaceMethod(dragView, @selector(setupDragInfoFromXEvent:), setUp);
    nativeUpdate = TNReplaceMethod(dragView, @selector(updateDragInfoFromEvent:), update);
}
