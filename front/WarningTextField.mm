#import "front/WarningTextField.h"

#import "front/Colors.h"

#include "ui/WarningColour.h"

namespace {

/// The appearance goes by what ordinary text is drawn in just now.
NSColor *warningColor() {
    constexpr CGFloat middle = 0.5;
    NSColor *text = [[NSColor controlTextColor] colorUsingColorSpace:[NSColorSpace genericGrayColorSpace]];
    return tarnwick::colorOf(
        [text whiteComponent] > middle ? tarnwick::warningOnDark : tarnwick::warningOnLight);
}

} // namespace

@implementation WarningTextField

- (BOOL)warns {
    return _warns;
}

- (void)setWarns:(BOOL)warns {
    if (warns != _warns) {
        _warns = warns;
        [self takeColor];
    }
}

/// On the strong colour of a selection no warning could be read: there its slant alone is left.
- (void)takeColor {
    const bool isOnStrongColor = [[self cell] backgroundStyle] == NSBackgroundStyleDark;
    NSColor *color = _warns && !isOnStrongColor ? warningColor() : [NSColor controlTextColor];
    if (![[self textColor] isEqual:color]) {
        [self setTextColor:color];
    }
}

- (void)drawRect:(NSRect)rect {
    if (_warns) {
        [self takeColor];
    }
    [super drawRect:rect];
}

@end
