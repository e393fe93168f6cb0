// Pictures that GNUstep draws from files in its own look: check boxes, radio buttons and the arrow of the
// default button. They are drawn here in the theme's colours and take over the names.

#import "TNTheme.h"

namespace {

constexpr CGFloat boxSize = 16;

void fillShape(NSBezierPath *path, bool on) {
    const auto *colors = TNThemeCurrentColors();
    [(on ? colors->accent : colors->control) set];
    [path fill];
    [(on ? colors->accent : colors->knob) set];
    [path setLineWidth:1];
    [path stroke];
}

void installCheckBox(NSString *name, bool on) {
    TNThemeInstallImage(name, NSMakeSize(boxSize, boxSize), ^(NSRect bounds) {
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

void installRadioButton(NSString *name, bool on) {
    TNThemeInstallImage(name, NSMakeSize(boxSize, boxSize), ^(NSRect bounds) {
        fillShape([NSBezierPath bezierPathWithOvalInRect:NSInsetRect(bounds, 1.5, 1.5)], on);
        if (on) {
            [TNThemeCurrentColors()->accentText set];
            [[NSBezierPath bezierPathWithOvalInRect:NSInsetRect(bounds, 5.5, 5.5)] fill];
        }
    });
}

} // namespace

void TNThemeInstallImage(NSString *name, NSSize size, void (^drawing)(NSRect bounds)) {
    static NSMutableDictionary *const drawn = [[NSMutableDictionary alloc] init];
    const NSRect bounds = NSMakeRect(0, 0, size.width, size.height);
    NSImage *canvas = [[[NSImage alloc] initWithSize:size] autorelease];
    [canvas lockFocus];
    NSRectFillUsingOperation(bounds, NSCompositingOperationClear);
    drawing(bounds);
    // Pixels: only they can be scaled and kept in files.
    NSBitmapImageRep *pixels = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:bounds] autorelease];
    [canvas unlockFocus];
    NSImage *image = [drawn objectForKey:name];
    if (image) {
        // Buttons hold it: a change of appearance changes the picture, not the image.
        [image recache];
        for (NSImageRep *old in [[[image representations] copy] autorelease]) {
            [image removeRepresentation:old];
        }
        [image addRepresentation:pixels];
        return;
    }
    image = [[[NSImage alloc] initWithSize:size] autorelease];
    [image addRepresentation:pixels];
    // A name that is taken is refused.
    NSImage *old = [NSImage imageNamed:name];
    [old setName:nil];
    [image setName:name];
    [drawn setObject:image forKey:name];
}

void TNThemeInstallImages() {
    installCheckBox(@"GSSwitch", false);
    installCheckBox(@"GSSwitchSelected", true);
    installRadioButton(@"GSRadio", false);
    installRadioButton(@"GSRadioSelected", true);
    for (NSString *name in [NSArray arrayWithObjects:@"common_ret", @"common_retH", nil]) {
        TNThemeInstallImage(name, NSMakeSize(1, 1),
            ^(NSRect){
            });
    }
    TNThemeInstallPanelImages();
}
