// Missing: template images, and pictures of disabled check boxes, as of GNUstep GUI 0.29, which draws every
// picture as it is, or with half of it gone when its button is disabled.

#import "TNTheme.h"

#import "TNAdditions.h"
#import "gnustep/runtime/MethodReplacement.h"

namespace {

/// Kept for the whole run: a program has a few.
NSMutableSet *templates() {
    static NSMutableSet *const set = [[NSMutableSet alloc] init];
    return set;
}

NSImage *makeTinted(NSImage *image, NSColor *color) {
    const NSSize size = [image size];
    const NSRect bounds = NSMakeRect(0, 0, size.width, size.height);
    NSImage *tinted = [[[NSImage alloc] initWithSize:size] autorelease];
    [tinted lockFocus];
    [image drawInRect:bounds fromRect:NSZeroRect operation:NSCompositingOperationSourceOver fraction:1];
    [color set];
    NSRectFillUsingOperation(bounds, NSCompositeSourceAtop);
    [tinted unlockFocus];
    return tinted;
}

/// The template in this colour, one of the theme's; they are made once.
NSImage *tinted(NSImage *image, NSColor *color) {
    static NSMapTable *const made = [[NSMapTable alloc] initWithKeyOptions:NSPointerFunctionsStrongMemory
                                                              valueOptions:NSPointerFunctionsStrongMemory
                                                                  capacity:0];
    NSMutableDictionary *ofImage = [made objectForKey:image];
    if (!ofImage) {
        ofImage = [NSMutableDictionary dictionary];
        [made setObject:ofImage forKey:image];
    }
    NSImage *found = [ofImage objectForKey:color];
    if (!found) {
        found = makeTinted(image, color);
        [ofImage setObject:found forKey:color];
    }
    return found;
}

/// Nil when there is none of its own.
NSImage *disabledPicture(NSImage *image) {
    NSString *name = [image name];
    return [name hasPrefix:@"GSSwitch"] || [name isEqualToString:TNThemeMixedSwitchImage]
               ? [NSImage imageNamed:TNThemeDisabledImageName(name)]
               : nil;
}

/// What the button shows in the picture's place.
NSImage *shownPicture(NSButtonCell *cell, NSImage *image) {
    if ([image isTemplate]) {
        return tinted(image, [cell textColor]);
    }
    NSImage *disabled = [cell isEnabled] ? nil : disabledPicture(image);
    return disabled ? disabled : image;
}

using Draw = void (*)(id self, SEL command, NSImage *image, NSRect frame, NSView *view);
Draw nativeDraw = nullptr;

void draw(id self, SEL command, NSImage *image, NSRect frame, NSView *view) {
    nativeDraw(self, command, shownPicture(self, image), frame, view);
}

/// GNUstep has this off from the start.
BOOL dims(id self, SEL) {
    NSImage *image = [self image];
    return ![image isTemplate] && !disabledPicture(image);
}

} // namespace

@implementation NSImage (TNTemplates)

- (void)setTemplate:(BOOL)isTemplate {
    if (isTemplate) {
        [templates() addObject:self];
    } else {
        [templates() removeObject:self];
    }
}

- (BOOL)isTemplate {
    return [templates() containsObject:self];
}

@end

@interface NSButtonCell (TNImages)
@end

@implementation NSButtonCell (TNImages)

+ (void)load {
    nativeDraw = TNReplaceMethod(self, @selector(drawImage:withFrame:inView:), draw);
    TNReplaceMethod(self, @selector(imageDimsWhenDisabled), dims);
}

@end
