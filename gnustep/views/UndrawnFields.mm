// Wrong: the text of a field that is edited before it was ever drawn, as of GNUstep GUI 0.29: its cell, which
// does not know the field yet, answers with what was there before the edit.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using SelectText = void (*)(id self, SEL command, id sender);
SelectText nativeSelectText = nullptr;

/// Every edit begins with it.
void selectText(id self, SEL command, id sender) {
    [[self cell] setControlView:self];
    nativeSelectText(self, command, sender);
}

} // namespace

@interface NSTextField (TNUndrawnFields)
@end

@implementation NSTextField (TNUndrawnFields)

+ (void)load {
    nativeSelectText = TNReplaceMethod(self, @selector(selectText:), selectText);
}

@end
