// Missing: interfaces that are read from right to left, as of GNUstep GUI 0.29, in which the application has
// no direction and check boxes, scrollers and columns are always placed for reading from left to right.

#import "gnustep/start/LayoutDirection.h"

#import "TNAdditions.h"
#import "gnustep/runtime/MethodReplacement.h"

namespace {

using SetButtonType = void (*)(id self, SEL command, NSButtonType type);
SetButtonType nativeSetButtonType = nullptr;

void setButtonType(id self, SEL command, NSButtonType type) {
    nativeSetButtonType(self, command, type);
    if (type == NSButtonTypeSwitch && TNReadsFromRightToLeft()) {
        [self setImagePosition:NSImageRight];
    }
}

bool isForcedBySettings() {
    NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
    return [defaults boolForKey:@"AppleTextDirection"] &&
           [defaults boolForKey:@"NSForceRightToLeftWritingDirection"];
}

} // namespace

/// Asked for every cell: the settings are looked at once.
bool TNReadsFromRightToLeft() {
    static const bool isForced = isForcedBySettings();
    return isForced;
}

NSRect TNPlaceByDirection(NSRect place, NSRect room) {
    return TNReadsFromRightToLeft()
               ? NSOffsetRect(place, NSMinX(room) + NSMaxX(room) - NSMinX(place) - NSMaxX(place), 0)
               : place;
}

CGFloat TNLeadingEdge(NSRect place) {
    return TNReadsFromRightToLeft() ? NSMaxX(place) : NSMinX(place);
}

NSTextAlignment TNLeadingAlignment() {
    return TNReadsFromRightToLeft() ? NSRightTextAlignment : NSLeftTextAlignment;
}

@implementation NSApplication (TNLayoutDirection)

- (NSUserInterfaceLayoutDirection)userInterfaceLayoutDirection {
    return TNReadsFromRightToLeft() ? NSUserInterfaceLayoutDirectionRightToLeft
                                    : NSUserInterfaceLayoutDirectionLeftToRight;
}

@end

@interface NSButtonCell (TNLayoutDirection)
@end

@implementation NSButtonCell (TNLayoutDirection)

+ (void)load {
    nativeSetButtonType = TNReplaceMethod(self, @selector(setButtonType:), setButtonType);
}

@end
