// Pictures that GNUstep draws from files in its own look: check boxes, radio buttons and the arrow of the
// default button. They are drawn here in the theme's colours and take over the names.

#import "TNTheme.h"

namespace {

constexpr CGFloat boxSize = 16;

void install(NSString *name, NSImage *image) {
    // A name that is taken is refused.
    NSImage *old = [NSImage imageNamed:name];
    [old setName:nil];
    [image setName:name];
}

NSImage *draw(CGFloat size, void (^drawing)(NSRect bounds)) {
    NSImage *image = [[NSImage alloc] initWithSize:NSMakeSize(size, size)];
    [image lockFocus];
    [[NSColor clearColor] set];
    NSRectFillUsingOperation(NSMakeRect(0, 0, size, size), NSCompositeClear);
    drawing(NSMakeRect(0, 0, size, size));
    [image unlockFocus];
    return image;
}

void fillShape(NSBezierPath *path, bool on) {
    const auto *colors = TNThemeCurrentColors();
    [(on ? colors->accent : colors->control) set];
    [path fill];
    [(on ? colors->accent : colors->knob) set];
    [path setLineWidth:1];
    [path stroke];
}

NSImage *makeCheckBox(bool on) {
    return draw(boxSize, ^(NSRect bounds) {
        fillShape([NSBezierPath bezierPathWithRoundedRect:NSInsetRect(bounds, 1.5, 1.5)
                                                  xRadius:3.5
                                                  yRadius:3.5],
            on);
        if (on) {
            NSBezierPath *tick = [NSBezierPath bezierPath];
            [tick moveToPoint:NSMakePoint(4.6, 8.1)];
            [tick lineToPoint:NSMakePoint(7.1, 5.4)];
            [tick lineToPoint:NSMakePoint(11.5, 10.9)];
            [tick setLineWidth:1.9];
            [tick setLineCapStyle:NSRoundLineCapStyle];
            [tick setLineJoinStyle:NSRoundLineJoinStyle];
            [TNThemeCurrentColors()->accentText set];
            [tick stroke];
        }
    });
}

NSImage *makeRadioButton(bool on) {
    return draw(boxSize, ^(NSRect bounds) {
        fillShape([NSBezierPath bezierPathWithOvalInRect:NSInsetRect(bounds, 1.5, 1.5)], on);
        if (on) {
            [TNThemeCurrentColors()->accentText set];
            [[NSBezierPath bezierPathWithOvalInRect:NSInsetRect(bounds, 5.5, 5.5)] fill];
        }
    });
}

} // namespace

void TNThemeInstallImages() {
    install(@"GSSwitch", makeCheckBox(false));
    install(@"GSSwitchSelected", makeCheckBox(true));
    install(@"GSRadio", makeRadioButton(false));
    install(@"GSRadioSelected", makeRadioButton(true));
    for (NSString *name in [NSArray arrayWithObjects:@"common_ret", @"common_retH", nil]) {
        install(name, draw(1, ^(NSRect){
                           }));
    }
}
