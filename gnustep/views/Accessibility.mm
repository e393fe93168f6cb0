// Missing: labels, help, values and selection for assistive technology, as of GNUstep GUI 0.29, which talks
// to none.

#import "TNAdditions.h"

#import "gnustep/views/ViewAttachments.h"

namespace {

NSString *const labelName = @"accessibilityLabel";
NSString *const helpName = @"accessibilityHelp";
NSString *const selectedName = @"accessibilitySelected";

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

- (void)setAccessibilitySelected:(BOOL)selected {
    TNSetAttachment(self, selectedName, [NSNumber numberWithBool:selected]);
}

/// Ahead of its first caller, as the help is.
- (BOOL)isAccessibilitySelected {
    return [TNAttachment(self, selectedName) boolValue];
}

@end

@implementation NSButton (TNAccessibility)

/// Ahead of its first caller, as the label is.
- (id)accessibilityValue {
    const NSInteger state = [self state];
    return [NSNumber numberWithInteger:state == NSControlStateValueMixed ? 2 : state];
}

@end
