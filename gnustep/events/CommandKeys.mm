// Missing: menu keys on keyboards without Latin letters, as of GNUstep GUI 0.29, for which Command and Я is
// no Command and Z.

#import "gnustep/events/CommandKeys.h"

#import "TNConstants.h"

namespace {

/// Of the X server, for keyboards of PCs: the key at the left of each row, and what the row holds.
const struct {
    unsigned short firstCode;
    NSString *letters;
} rows[] = {
    {24, @"qwertyuiop[]"},
    {38, @"asdfghjkl;'`"},
    {51, @"\\zxcvbnm,./"},
};

/// Nil for a key that is in none of the rows.
NSString *latinLetterAt(unsigned short code) {
    for (const auto &row : rows) {
        if (code >= row.firstCode && code < row.firstCode + [row.letters length]) {
            return [row.letters substringWithRange:NSMakeRange(code - row.firstCode, 1)];
        }
    }
    return nil;
}

bool isForeignLetter(NSString *characters) {
    constexpr unichar endOfLatin = 0x250;
    return [characters length] == 1 && [characters characterAtIndex:0] >= endOfLatin &&
           [[NSCharacterSet letterCharacterSet] characterIsMember:[characters characterAtIndex:0]];
}

} // namespace

NSEvent *TNWithLatinCommandKey(NSEvent *event) {
    const bool isKey = [event type] == NSKeyDown || [event type] == NSKeyUp;
    if (!isKey || ([event modifierFlags] & NSEventModifierFlagCommand) == 0 ||
        !isForeignLetter([event charactersIgnoringModifiers])) {
        return event;
    }
    NSString *letter = latinLetterAt([event keyCode]);
    if (!letter) {
        return event;
    }
    NSString *shifted =
        ([event modifierFlags] & NSEventModifierFlagShift) != 0 ? [letter uppercaseString] : letter;
    return [NSEvent keyEventWithType:[event type]
                            location:[event locationInWindow]
                       modifierFlags:[event modifierFlags]
                           timestamp:[event timestamp]
                        windowNumber:[event windowNumber]
                             context:[event context]
                          characters:shifted
         charactersIgnoringModifiers:shifted
                           isARepeat:[event isARepeat]
                             keyCode:[event keyCode]];
}
