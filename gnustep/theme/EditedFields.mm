// Wrong: the look of a field without bezel that is being edited, as of GNUstep GUI 0.29: a white ground as
// large as its frame, from the first letter on. Here it is a box around the line of text, with room at its
// sides; the text stays where it is, and so does the frame.

#import "TNTheme.h"

#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/start/LayoutDirection.h"

#include <algorithm>

namespace {

constexpr CGFloat sideRoom = 4;
constexpr CGFloat heightRoom = 3;

/// A field without bezel draws its text at the top of its frame. What is behind the text, as one reads, is
/// left out, so that the box does not meet what stands there.
NSRect lineOf(NSTextField *field) {
    NSRect line = [field bounds];
    line.size.height = std::min(NSHeight(line), [[field font] defaultLineHeightForFont]);
    line.size.width = std::max(0.0, NSWidth(line) - 2 * sideRoom);
    return TNPlaceByDirection(line, [field bounds]);
}

bool hasBox(NSTextField *field) {
    return [field isBezeled] || [field isBordered];
}

using DrawEditor = void (*)(id self, SEL command, NSRect frame, NSView *view);
DrawEditor nativeDrawEditor = nullptr;

/// Nothing is drawn here: the editor is given its place.
void drawEditor(id self, SEL command, NSRect frame, NSView *view) {
    nativeDrawEditor(self, command, frame, view);
    if (![view isKindOfClass:[NSTextField class]] || hasBox((NSTextField *)view)) {
        return;
    }
    NSView *clipView = [[(NSTextField *)view currentEditor] superview];
    if ([clipView isKindOfClass:[NSClipView class]]) {
        [clipView setFrame:lineOf((NSTextField *)view)];
        [(NSClipView *)clipView setBackgroundColor:[NSColor textBackgroundColor]];
    }
}

} // namespace

NSTextField *TNEditedFieldOf(NSWindow *window) {
    id responder = [window firstResponder];
    if (![responder isKindOfClass:[NSText class]] || ![responder isFieldEditor]) {
        return nil;
    }
    id field = [responder delegate];
    return [field isKindOfClass:[NSTextField class]] ? field : nil;
}

NSRect TNFrameOfEditedField(NSTextField *field) {
    return hasBox(field) ? [field bounds] : NSInsetRect(lineOf(field), -sideRoom, -heightRoom);
}

void TNDrawBoxOfEditedField(NSTextField *field, NSRect box) {
    if (hasBox(field)) {
        return;
    }
    const auto *colors = TNThemeCurrentColors();
    NSBezierPath *room = [NSBezierPath bezierPathWithRect:box];
    [room appendBezierPathWithRect:NSInsetRect(box, sideRoom, heightRoom)];
    [room setWindingRule:NSEvenOddWindingRule];
    [colors->surface set];
    [room fill];
    [colors->controlBorder set];
    [TNThemeHairline(box, 0) stroke];
}

@interface NSCell (TNEditedFields)
@end

@implementation NSCell (TNEditedFields)

+ (void)load {
    nativeDrawEditor = TNReplaceMethod(self, @selector(_drawEditorWithFrame:inView:), drawEditor);
}

@end
