// Missing: menu keys on keyboards without Latin letters, as of GNUstep GUI 0.29, for which Command and Я is
// no Command and Z, and on those that have digits only with Shift, French ones for example.

#import "gnustep/events/CommandKeys.h"

#import "TNConstants.h"

namespace {

/// Of the X server, for keyboards of PCs: the key at the left of each row, and what the row holds.
const struct {
    unsigned short firstCode;
    NSString *characters;
} rows[] = {
    {10, @"1234567890"},
    {24, @"qwertyuiop[]"},
    {38, @"asdfghjkl;'`"},
    {51, @"\\zxcvbnm,./"},
};

/// Nil for a key that is in none of the rows.
NSString *characterAt(unsigned short code) {
    for (const auto &row : rows) {
        if (code >= row.firstCode && code < row.firstCode + [row.characters length]) {
            return [row.characters substringWithRange:NSMakeRange(code - row.firstCode, 1)];
        }
    }
    return nil;
}

bool isIn(NSCharacterSet *set, NSString *character) {
    return [set characterIsMember:[character characterAtIndex:0]];
}

bool isForeignLetter(NSString *character) {
    constexpr unichar endOfLatin = 0x250;
    return
        [character characterAtIndex:0] >= endOfLatin && isIn([NSCharacterSet letterCharacterSet], character);
}

/// Nil for a key that keeps what it gives.
NSString *latinCharacterFor(NSEvent *event) {
    NSString *own = [event charactersIgnoringModifiers];
    NSString *latin = characterAt([event keyCode]);
    if ([own length] != 1 || !latin) {
        return nil;
    }
    const bool isShifted = ([event modifierFlags] & NSEventModifierFlagShift) != 0;
    if (isIn([NSCharacterSet decimalDigitCharacterSet], latin)) {
        return isShifted ? nil : latin;
    }
    return !isForeignLetter(own) ? nil : isShifted ? [latin uppercaseString] : latin;
}

} // namespace

NSEvent *TNWithLatinCommandKey(NSEvent *event) {
    const bool isKey = [event type] == NSKeyDown || [event type] == NSKeyUp;
    if (!isKey || ([event modifierFlags] & NSEventModifierFlagCommand) == 0) {
        return event;
    }
    NSString *latin = latinCharacterFor(event);
    if (!latin) {
        return event;
    }
    return [NSEvent keyEventWithType:[event type]
                            location:[event locationInWindow]
                       modifierFlags:[event modifierFlags]
                           timestamp:[event timestamp]
                        windowNumber:[event windowNumber]
                             context:[event context]
                          characters:latin
         charactersIgnoringModifiers:latin
                           isARepeat:[event isARepeat]
                             keyCode:[event keyCode]];
}
