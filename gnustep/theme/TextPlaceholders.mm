// Missing: placeholder texts of text fields, as of GNUstep GUI 0.29. Their cells keep one, but it is never
// drawn, and the fields themselves have no such property.

#import <AppKit/AppKit.h>

#import "TNAdditions.h"
#import "TNTheme.h"
#import "gnustep/runtime/MethodReplacement.h"

namespace {

using Draw = void (*)(id self, SEL command, NSRect frame, NSView *view);
Draw nativeDraw = nullptr;

bool isBeingEdited(NSView *view) {
    return [view isKindOfClass:[NSControl class]] && [(NSControl *)view currentEditor] != nil;
}

void drawPlaceholder(NSTextFieldCell *cell, NSRect frame) {
    NSDictionary *attributes =
        [NSDictionary dictionaryWithObjectsAndKeys:[cell font], NSFontAttributeName,
                      TNThemeCurrentColors() -> placeholderText, NSForegroundColorAttributeName, nil];
    [[cell placeholderString] drawInRect:[cell titleRectForBounds:frame] withAttributes:attributes];
}

void draw(id self, SEL command, NSRect frame, NSView *view) {
    nativeDraw(self, command, frame, view);
    if ([[self stringValue] length] == 0 && [[self placeholderString] length] > 0 && !isBeingEdited(view)) {
        drawPlaceholder(self, frame);
    }
}

} // namespace

@interface NSTextFieldCell (TNPlaceholders)
@end

@implementation NSTextFieldCell (TNPlaceholders)

+ (void)load {
    nativeDraw = TNReplaceMethod(self, @selector(drawInteriorWithFrame:inView:), draw);
}

@end

@implementation NSTextField (TNPlaceholders)

- (void)setPlaceholderString:(NSString *)text {
    [(NSTextFieldCell *)[self cell] setPlaceholderString:text];
    [self setNeedsDisplay:YES];
}

- (NSString *)placeholderString {
    return [(NSTextFieldCell *)[self cell] placeholderString];
}

@end
