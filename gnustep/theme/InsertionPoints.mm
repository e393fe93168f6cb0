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
    const CGFloat margin = [textContainer lineFragmentPadding];
    const CGFloat rest = std::max(0.0, [textContainer containerSize].width - 2 * margin - NSWidth(place));
    NSParagraphStyle *style = [[self typingAttributes] objectForKey:NSParagraphStyleAttributeName];
    if ([style alignment] == NSRightTextAlignment) {
        place.origin.x = margin + rest;
    } else if ([style alignment] == NSCenterTextAlignment) {
        place.origin.x = margin + rest / 2;
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
