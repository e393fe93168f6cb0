// Wrong: menu items with a small letter and Shift among their keys, as of GNUstep GUI 0.29, which compares
// the letter with the capital one that Shift gives, and so never chooses them. And menus whose delegate puts
// other items there just then: it goes on through as many as there were.

#import <AppKit/AppKit.h>

#import "TNConstants.h"
#import "gnustep/runtime/MethodReplacement.h"

namespace {

using PerformKey = BOOL (*)(id self, SEL command, NSEvent *event);
PerformKey nativePerformKey = nullptr;

constexpr NSUInteger compared = NSCommandKeyMask | NSAlternateKeyMask | NSControlKeyMask;

/// A capital letter is one with Shift.
bool hasShift(NSMenuItem *item) {
    NSString *key = [item keyEquivalent];
    return ([item keyEquivalentModifierMask] & NSEventModifierFlagShift) != 0 ||
           ![key isEqualToString:[key lowercaseString]];
}

bool isKeyOf(NSMenuItem *item, NSEvent *event, NSString *letter) {
    const bool isShifted = ([event modifierFlags] & NSEventModifierFlagShift) != 0;
    return [[[item keyEquivalent] lowercaseString] isEqualToString:letter] && hasShift(item) == isShifted &&
           ([item keyEquivalentModifierMask] & compared) == ([event modifierFlags] & compared);
}

/// Nothing happens for an item that is disabled, and nobody else gets its keys.
void perform(NSMenu *menu, NSMenuItem *item) {
    [menu update];
    if ([item isEnabled]) {
        [menu performActionForItemAtIndex:[menu indexOfItem:item]];
    }
}

BOOL performKey(id self, SEL command, NSEvent *event) {
    NSMenu *menu = self;
    if ([menu delegate]) {
        // It may put other items there, which the native method would only do once it has counted them.
        [menu update];
    }
    NSString *letter = [[event charactersIgnoringModifiers] lowercaseString];
    if ([letter isEqualToString:[letter uppercaseString]]) {
        return nativePerformKey(self, command, event);
    }
    for (NSMenuItem *item in [menu itemArray]) {
        if ([item hasSubmenu]) {
            if ([[item submenu] performKeyEquivalent:event]) {
                return YES;
            }
        } else if (isKeyOf(item, event, letter)) {
            perform(menu, item);
            return YES;
        }
    }
    return NO;
}

} // namespace

@interface NSMenu (TNShiftedKeys)
@end

@implementation NSMenu (TNShiftedKeys)

+ (void)load {
    nativePerformKey = TNReplaceMethod(self, @selector(performKeyEquivalent:), performKey);
}

@end
