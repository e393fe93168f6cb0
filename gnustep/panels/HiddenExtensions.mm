// Missing: names without extensions in an open panel that is told to hide them, as of GNUstep GUI 0.29, which
// shows them whatever it is told.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

@interface NSOpenPanel (TNHiddenExtensions)
- (void)tnHideExtensionInNameField;
@end

namespace {

using SelectText = void (*)(id self, SEL command, int column);
using DrawCell = void (*)(id self, SEL command, NSRect frame, NSView *view);
SelectText nativeSelectText = nullptr;
DrawCell nativeDrawCell = nullptr;

void selectText(id self, SEL command, int column) {
    nativeSelectText(self, command, column);
    if ([self isExtensionHidden]) {
        [self tnHideExtensionInNameField];
    }
}

bool hidesExtensionIn(NSView *view) {
    id panel = [view window];
    return [panel isKindOfClass:[NSOpenPanel class]] && [panel isExtensionHidden];
}

void drawCell(id self, SEL command, NSRect frame, NSView *view) {
    if (![self isLeaf] || !hidesExtensionIn(view)) {
        nativeDrawCell(self, command, frame, view);
        return;
    }
    NSBrowserCell *shown = [[self copy] autorelease];
    // A change of the copy is none of the view's, which would be drawn again for it.
    [shown setControlView:nil];
    [shown setStringValue:[[self stringValue] stringByDeletingPathExtension]];
    nativeDrawCell(shown, command, frame, view);
}

} // namespace

@implementation NSOpenPanel (TNHiddenExtensions)

+ (void)load {
    nativeSelectText = TNReplaceMethod(self, @selector(_selectTextInColumn:), selectText);
}

- (void)tnHideExtensionInNameField {
    NSCell *field = [_form cellAtIndex:0];
    if ([[_browser selectedCell] isLeaf] && [[_browser selectedCells] count] == 1) {
        [field setStringValue:[[field stringValue] stringByDeletingPathExtension]];
    }
}

@end

@interface NSBrowserCell (TNHiddenExtensions)
@end

@implementation NSBrowserCell (TNHiddenExtensions)

+ (void)load {
    nativeDrawCell = TNReplaceMethod(self, @selector(drawInteriorWithFrame:inView:), drawCell);
}

@end
