// Missing: labels, help and values for assistive technology, as of GNUstep GUI 0.29, which talks to none.

#import "TNAdditions.h"

#import "gnustep/views/ViewAttachments.h"

namespace {

NSString *const labelName = @"accessibilityLabel";
NSString *const helpName = @"accessibilityHelp";

} // namespace

@implementation NSView (TNAccessibility)

- (void)setAccessibilityLabel:(NSString *)label {
    TNSetAttachment(self, labelName, [[label copy] autorelease]);
}

- (NSString *)accessibilityLabel {
    return TNAttachment(self, labelName);
}

- (void)setAccessibilityHelp:(NSString *)help {
    TNSetAttachment(self, helpName, [[help copy] autorelease]);
}

/// Ahead of its first caller: no assistive technology asks.
- (NSString *)accessibilityHelp {
    return TNAttachment(self, helpName);
}

@end

@implementation NSButton (TNAccessibility)

/// Ahead of its first caller, as the label is.
- (id)accessibilityValue {
    const NSInteger state = [self state];
    return [NSNumber numberWithInteger:state == NSControlStateValueMixed ? 2 : state];
}

@end
