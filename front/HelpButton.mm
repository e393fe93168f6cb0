#import "front/HelpButton.h"

#import "front/Colors.h"

@implementation HelpButton

- (void)drawRect:(NSRect)rect {
    constexpr CGFloat radius = 6;
    constexpr CGFloat pressed = 0.06;
    constexpr CGFloat border = 0.5;
    NSBezierPath *path = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect([self bounds], 0.5, 1.5)
                                                         xRadius:radius
                                                         yRadius:radius];
    [[NSColor textBackgroundColor] set];
    [path fill];
    if ([[self cell] isHighlighted]) {
        [tarnwick::shadeColor(pressed) set];
        [path fill];
    }
    [tarnwick::shadeColor(border) set];
    [path stroke];
    [super drawRect:rect];
}

@end
