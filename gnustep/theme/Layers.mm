// Missing: layers, for the background colours and round corners of views, as of GNUstep GUI 0.29. A layer
// here is a background colour with round corners, drawn ahead of a view that leaves `drawRect:` to NSView or
// NSControl, or calls it.

#import <QuartzCore/QuartzCore.h>

#import "TNAdditions.h"
#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/views/ViewAttachments.h"

namespace {

NSString *const layerName = @"layer";

void drawLayer(NSView *self, SEL, NSRect) {
    [[self layer] drawInBounds:[self bounds]];
}

} // namespace

@implementation CALayer

- (instancetype)initWithView:(NSView *)view {
    self = [super init];
    if (self) {
        _view = view;
    }
    return self;
}

- (void)dealloc {
    [_color release];
    [super dealloc];
}

- (void)setBackgroundColor:(CGColorRef)color {
    NSColor *newColor = (NSColor *)color;
    if ([newColor isEqual:_color]) {
        return;
    }
    [newColor retain];
    [_color release];
    _color = newColor;
    [_view setNeedsDisplay:YES];
}

- (void)setCornerRadius:(CGFloat)radius {
    _cornerRadius = radius;
    [_view setNeedsDisplay:YES];
}

- (void)drawInBounds:(NSRect)bounds {
    if (!_color) {
        return;
    }
    [_color set];
    [[NSBezierPath bezierPathWithRoundedRect:bounds xRadius:_cornerRadius yRadius:_cornerRadius] fill];
}

@end

@implementation NSColor (TNLayers)

- (CGColorRef)CGColor {
    return (CGColorRef)self;
}

@end

@implementation NSView (TNLayers)

- (void)setWantsLayer:(BOOL)wantsLayer {
    if (wantsLayer != [self wantsLayer]) {
        CALayer *layer = wantsLayer ? [[[CALayer alloc] initWithView:self] autorelease] : nil;
        TNSetAttachment(self, layerName, layer);
        [self setNeedsDisplay:YES];
    }
}

- (BOOL)wantsLayer {
    return [self layer] != nil;
}

- (CALayer *)layer {
    return TNAttachment(self, layerName);
}

+ (void)load {
    // NSView's own draws nothing.
    TNReplaceMethod(self, @selector(drawRect:), drawLayer);
}

@end

@implementation NSControl (TNLayers)

- (void)drawRect:(NSRect)rect {
    (void)rect;
    [[self layer] drawInBounds:[self bounds]];
    [self drawCell:[self cell]];
}

@end
