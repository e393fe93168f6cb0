// Missing: template images, and pictures of disabled check boxes, as of GNUstep GUI 0.29, which draws every
// picture as it is, or with half of it gone when its button is disabled.

#import "TNTheme.h"

#import "TNAdditions.h"
#import "gnustep/runtime/MethodReplacement.h"

#include <array>
#include <climits>
#include <cmath>
#include <vector>

namespace {

/// Kept for the whole run: a program has a few.
NSMutableSet *templates() {
    static NSMutableSet *const set = [[NSMutableSet alloc] init];
    return set;
}

NSBitmapImageRep *pixelsOf(NSImage *image) {
    id best = [image bestRepresentationForDevice:nil];
    return [best isKindOfClass:[NSBitmapImageRep class]]
               ? best
               : [NSBitmapImageRep imageRepWithData:[image TIFFRepresentation]];
}

/// How opaque each pixel is, from 0 to 1, line by line.
std::vector<CGFloat> alphasOf(NSBitmapImageRep *pixels) {
    constexpr std::size_t mostSamples = 5;
    const NSInteger width = [pixels pixelsWide];
    const NSInteger height = [pixels pixelsHigh];
    std::vector<CGFloat> alphas(static_cast<std::size_t>(width * height), 1);
    if (![pixels hasAlpha]) {
        return alphas;
    }
    const std::size_t last = static_cast<std::size_t>([pixels samplesPerPixel]) - 1;
    const auto most = static_cast<CGFloat>((NSUInteger{1} << [pixels bitsPerSample]) - 1);
    auto alpha = alphas.begin();
    for (NSInteger y = 0; y < height; ++y) {
        for (NSInteger x = 0; x < width; ++x) {
            std::array<NSUInteger, mostSamples> samples{};
            [pixels getPixel:samples.data() atX:x y:y];
            *alpha++ = static_cast<CGFloat>(samples.at(last)) / most;
        }
    }
    return alphas;
}

/// What is opaque in it, in this colour: pixel by pixel, since whatever is drawn into takes a window.
NSImage *makeTinted(NSImage *image, NSColor *color) {
    constexpr int samplesPerPixel = 4;
    NSBitmapImageRep *source = pixelsOf(image);
    NSBitmapImageRep *pixels =
        [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                                 pixelsWide:[source pixelsWide]
                                                 pixelsHigh:[source pixelsHigh]
                                              bitsPerSample:8
                                            samplesPerPixel:samplesPerPixel
                                                   hasAlpha:YES
                                                   isPlanar:NO
                                             colorSpaceName:NSCalibratedRGBColorSpace
                                                bytesPerRow:[source pixelsWide] * samplesPerPixel
                                               bitsPerPixel:8 * samplesPerPixel] autorelease];
    NSColor *tint = [color colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
    const CGFloat opaque = UCHAR_MAX * [tint alphaComponent];
    const std::array<CGFloat, samplesPerPixel> parts{
        opaque * [tint redComponent], opaque * [tint greenComponent], opaque * [tint blueComponent], opaque};
    unsigned char *sample = [pixels bitmapData];
    for (const CGFloat alpha : alphasOf(source)) {
        for (const CGFloat part : parts) {
            *sample++ = static_cast<unsigned char>(std::lround(part * alpha));
        }
    }
    NSImage *tinted = [[[NSImage alloc] initWithSize:[image size]] autorelease];
    [tinted addRepresentation:pixels];
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
