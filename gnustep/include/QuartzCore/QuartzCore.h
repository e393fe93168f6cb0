#pragma once

// Missing: QuartzCore, as of GNUstep GUI 0.29. See Layers.mm.

#import <AppKit/AppKit.h>

/// A view's background: a colour behind what the view draws, with round corners.
@interface CALayer : NSObject {
@private
    NSView *_view;
    NSColor *_color;
    CGFloat _cornerRadius;
}

/// The view is not retained: it owns the layer.
- (instancetype)initWithView:(NSView *)view;

/// Colours are NSColor objects, see `-[NSColor CGColor]`; a null colour draws nothing.
- (void)setBackgroundColor:(CGColorRef)color;
- (void)setCornerRadius:(CGFloat)radius;

/// Fills the view's bounds.
- (void)drawInBounds:(NSRect)bounds;

@end
