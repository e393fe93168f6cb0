// Wrong: the room between a check box and its title, as of GNUstep GUI 0.29: so little that the focus ring
// touches the title.

#import "TNTheme.h"

#import "gnustep/runtime/MethodReplacement.h"

namespace {

constexpr CGFloat titleRoom = 2;

bool isTitledCheckBox(NSButtonCell *cell) {
    return TNIsCheckBox(cell) && [cell imagePosition] != NSImageOnly && [[cell title] length] > 0;
}

using DrawTitle = NSRect (*)(id self, SEL command, NSAttributedString *title, NSRect frame, NSView *view);
DrawTitle nativeDrawTitle = nullptr;

NSRect drawTitle(id self, SEL command, NSAttributedString *title, NSRect frame, NSView *view) {
    if (isTitledCheckBox(self)) {
        frame.size.width -= titleRoom;
        frame.origin.x += [self imagePosition] == NSImageRight ? 0 : titleRoom;
    }
    return nativeDrawTitle(self, command, title, frame, view);
}

using CellSize = NSSize (*)(id self, SEL command);
CellSize nativeCellSize = nullptr;

NSSize cellSize(id self, SEL command) {
    NSSize size = nativeCellSize(self, command);
    size.width += isTitledCheckBox(self) ? titleRoom : 0;
    return size;
}

} // namespace

bool TNIsCheckBox(NSButtonCell *cell) {
    return ([cell showsStateBy] & NSContentsCellMask) != 0 && ![cell isBordered];
}

@interface NSButtonCell (TNCheckBoxTitles)
@end

@implementation NSButtonCell (TNCheckBoxTitles)

+ (void)load {
    nativeDrawTitle = TNReplaceMethod(self, @selector(drawTitle:withFrame:inView:), drawTitle);
    nativeCellSize = TNReplaceMethod(self, @selector(cellSize), cellSize);
}

@end
