// Wrong: where one begins to type in an empty field whose text is at the right or in the middle, as of
// GNUstep GUI 0.29: at the left.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

#include <algorithm>

namespace {

using InsertionPoint = NSRect (*)(id self, SEL command, NSUInteger character, NSTextContainer *textContainer);
InsertionPoint nativeInsertionPoint = nullptr;

NSRect insertionPoint(id self, SEL command, NSUInteger character, NSTextContainer *textContainer) {
    NSRect place = nativeInsertionPoint(self, command, character, textContainer);
    if ([[self textStorage] length] > 0) {
        return place;
    }
    NSParagraphStyle *style = [[self typingAttributes] objectForKey:NSParagraphStyleAttributeName];
    const CGFloat rest =
        [textContainer containerSize].width - 2 * [textContainer lineFragmentPadding] - NSWidth(place);
    if ([style alignment] == NSRightTextAlignment) {
        place.origin.x += std::max(rest, 0.0);
    } else if ([style alignment] == NSCenterTextAlignment) {
        place.origin.x += std::max(rest / 2, 0.0);
    }
    return place;
}

} // namespace

@interface NSLayoutManager (TNInsertionPoints)
@end

@implementation NSLayoutManager (TNInsertionPoints)

+ (void)load {
    nativeInsertionPoint = TNReplaceMethod(
        self, @selector(insertionPointRectForCharacterIndex:inTextContainer:), insertionPoint);
}

@end
