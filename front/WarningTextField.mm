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
        [self setTextColor:warns ? warningColor() : [NSColor controlTextColor]];
    }
}

- (void)drawRect:(NSRect)rect {
    if (_warns && ![[self textColor] isEqual:warningColor()]) {
        [self setTextColor:warningColor()];
    }
    [super drawRect:rect];
}

@end
