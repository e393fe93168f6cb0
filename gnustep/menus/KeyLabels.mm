// Wrong: the keys that menus show, as of GNUstep GUI 0.29: "#z" for Command and Z, and nothing for Shift.
// Their names are those of the application's table, where it has them.

#import "gnustep/menus/KeyLabels.h"

#import "TNConstants.h"

namespace {

/// The keys that stand for those of a Mac; Command is the left Alt key.
const struct {
    NSUInteger flag;
    NSString *name;
} modifiers[] = {
    {NSControlKeyMask, @"Ctrl"},
    {NSEventModifierFlagOption, @"AltGr"},
    {NSEventModifierFlagShift, @"Shift"},
    {NSEventModifierFlagCommand, @"Alt"},
};

const struct {
    unichar character;
    NSString *name;
} keys[] = {
    {' ', @"Space"},
    {NSBackspaceCharacter, @"Backspace"},
    {NSTabCharacter, @"Tab"},
    {NSCarriageReturnCharacter, @"Return"},
    {NSEnterCharacter, @"Enter"},
    {0x1B, @"Esc"},
    {NSDeleteCharacter, @"Backspace"},
    {NSDeleteFunctionKey, @"Delete"},
    {NSUpArrowFunctionKey, @"Up"},
    {NSDownArrowFunctionKey, @"Down"},
    {NSLeftArrowFunctionKey, @"Left"},
    {NSRightArrowFunctionKey, @"Right"},
    {NSHomeFunctionKey, @"Home"},
    {NSEndFunctionKey, @"End"},
    {NSPageUpFunctionKey, @"Page Up"},
    {NSPageDownFunctionKey, @"Page Down"},
};

NSString *localized(NSString *name) {
    return [[NSBundle mainBundle] localizedStringForKey:name value:name table:nil];
}

NSString *nameOf(unichar character) {
    for (const auto &key : keys) {
        if (key.character == character) {
            return localized(key.name);
        }
    }
    if (character >= NSF1FunctionKey && character <= NSF35FunctionKey) {
        return [NSString stringWithFormat:@"F%d", character - NSF1FunctionKey + 1];
    }
    return nil;
}

} // namespace

NSString *TNKeyLabel(NSMenuItem *item) {
    NSString *key = [item keyEquivalent];
    if ([key length] == 0) {
        return @"";
    }
    NSUInteger mask = [item keyEquivalentModifierMask];
    // A capital letter is one with Shift.
    if (![key isEqualToString:[key lowercaseString]]) {
        mask |= NSEventModifierFlagShift;
    }
    NSMutableString *label = [NSMutableString string];
    for (const auto &modifier : modifiers) {
        if ((mask & modifier.flag) != 0) {
            [label appendFormat:@"%@+", localized(modifier.name)];
        }
    }
    NSString *name = nameOf([key characterAtIndex:0]);
    [label appendString:name ? name : [key uppercaseString]];
    return label;
}
