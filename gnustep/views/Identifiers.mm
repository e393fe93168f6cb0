// Missing: identifiers of views, as of GNUstep GUI 0.29.

#import "TNAdditions.h"

#import "gnustep/views/ViewAttachments.h"

namespace {

NSString *const identifierName = @"identifier";

} // namespace

@implementation NSView (TNIdentifiers)

- (void)setIdentifier:(NSString *)identifier {
    TNSetAttachment(self, identifierName, [[identifier copy] autorelease]);
}

- (NSString *)identifier {
    return TNAttachment(self, identifierName);
}

@end
