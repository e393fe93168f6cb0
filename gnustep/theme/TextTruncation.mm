// Missing: the ellipsis of a text that is too long, as of GNUstep GUI 0.29, which takes
// NSLineBreakByTruncatingTail but cuts the line off in the middle of a letter.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using Draw = void (*)(id self, SEL selector, NSRect frame, NSView *view);
Draw originalDraw = nullptr;

/// The longest beginning that fits the width with an ellipsis after it.
NSString *truncated(NSString *text, CGFloat width, NSDictionary *attributes) {
    NSUInteger fits = 0;
    NSUInteger tooLong = [text length];
    NSString *best = @"\u2026";
    while (tooLong - fits > 1) {
        const NSUInteger middle = (fits + tooLong) / 2;
        // Never through the middle of a composed character.
        const NSUInteger end = [text rangeOfComposedCharacterSequenceAtIndex:middle].location;
        NSString *candidate = [[text substringToIndex:end] stringByAppendingString:@"\u2026"];
        if ([candidate sizeWithAttributes:attributes].width <= width) {
            best = candidate;
            fits = middle;
        } else {
            tooLong = middle;
        }
    }
    return best;
}

void drawTruncated(id self, SEL selector, NSRect frame, NSView *view) {
    NSTextFieldCell *cell = self;
    NSAttributedString *text = [cell attributedStringValue];
    const NSRect inner = [cell drawingRectForBounds:frame];
    const bool isBeingEdited = [[view window] fieldEditor:NO forObject:view] &&
                               [(id)[[view window] fieldEditor:NO forObject:view] delegate] == view;
    if ([cell lineBreakMode] != NSLineBreakByTruncatingTail || [text length] == 0 || isBeingEdited ||
        [text size].width <= NSWidth(inner)) {
        originalDraw(self, selector, frame, view);
        return;
    }
    NSDictionary *attributes = [text attributesAtIndex:0 effectiveRange:nullptr];
    NSTextFieldCell *shown = [[cell copy] autorelease];
    // A change of the copy is none of the view's, which would be drawn again for it.
    [shown setControlView:nil];
    [shown setStringValue:truncated([text string], NSWidth(inner), attributes)];
    originalDraw(shown, selector, frame, view);
}

} // namespace

@interface NSTextFieldCell (TNTextTruncation)
@end

@implementation NSTextFieldCell (TNTextTruncation)

+ (void)load {
    originalDraw = TNReplaceMethod(self, @selector(drawInteriorWithFrame:inView:), &drawTruncated);
}

@end
