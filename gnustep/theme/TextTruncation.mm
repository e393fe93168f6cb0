// Missing: the ellipsis of a text that is too long, as of GNUstep GUI 0.29, which takes
// NSLineBreakByTruncatingTail and NSLineBreakByTruncatingMiddle but cuts the line off in the middle of a
// letter.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using Draw = void (*)(id self, SEL selector, NSRect frame, NSView *view);
Draw originalDraw = nullptr;

/// So many characters of the text and an ellipsis for the others; never through the middle of a composed one.
NSString *shortened(NSString *text, NSUInteger characters, NSLineBreakMode mode) {
    const auto startOf = [text](NSUInteger index) {
        return index < [text length] ? [text rangeOfComposedCharacterSequenceAtIndex:index].location
                                     : [text length];
    };
    const NSUInteger atEnd = mode == NSLineBreakByTruncatingMiddle ? characters / 2 : 0;
    NSString *head = [text substringToIndex:startOf(characters - atEnd)];
    NSString *tail = [text substringFromIndex:startOf([text length] - atEnd)];
    return [NSString stringWithFormat:@"%@\u2026%@", head, tail];
}

/// The most of the text that fits the width with an ellipsis.
NSString *truncated(NSString *text, CGFloat width, NSDictionary *attributes, NSLineBreakMode mode) {
    NSUInteger fits = 0;
    NSUInteger tooLong = [text length];
    NSString *best = @"\u2026";
    while (tooLong - fits > 1) {
        const NSUInteger middle = (fits + tooLong) / 2;
        NSString *candidate = shortened(text, middle, mode);
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
    const NSLineBreakMode mode = [cell lineBreakMode];
    const bool truncates = mode == NSLineBreakByTruncatingTail || mode == NSLineBreakByTruncatingMiddle;
    if (!truncates || [text length] == 0 || isBeingEdited || [text size].width <= NSWidth(inner)) {
        originalDraw(self, selector, frame, view);
        return;
    }
    NSDictionary *attributes = [text attributesAtIndex:0 effectiveRange:nullptr];
    NSTextFieldCell *shown = [[cell copy] autorelease];
    // A change of the copy is none of the view's, which would be drawn again for it.
    [shown setControlView:nil];
    [shown setStringValue:truncated([text string], NSWidth(inner), attributes, mode)];
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
