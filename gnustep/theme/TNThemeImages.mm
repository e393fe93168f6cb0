// Wrong: the pictures of check boxes, which
// GNUstep GUI 0.29 has in files and in its own look. They are drawn here in the theme's colours and take over
// the names. What the theme never shows is blank: reading GNUstep's own file of one picture takes longer than
// drawing them all.

#import "TNTheme.h"

#include <cstring>

namespace {

constexpr CGFloat boxSize = 16;

/// The image of that name is of these pixels from now on, for the whole run.
void showUnderName(NSBitmapImageRep *pixels, NSString *name) {
    static NSMutableDictionary *const drawn = [[NSMutableDictionary alloc] init];
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
    image = [[[NSImage alloc] initWithSize:[pixels size]] autorelease];
    [image addRepresentation:pixels];
    // A name that is taken is refused. Asking for the one who has it first would look for its file
    // everywhere.
    if (![image setName:name]) {
        NSImage *holder = [NSImage imageNamed:name];
        [holder setName:nil];
        [image setName:name];
    }
    [drawn setObject:image forKey:name];
}

enum class CheckMark { none, tick, dash };

NSBezierPath *pathOf(CheckMark mark) {
    NSBezierPath *path = [NSBezierPath bezierPath];
    if (mark == CheckMark::tick) {
        [path moveToPoint:NSMakePoint(4.6, 8.1)];
        [path lineToPoint:NSMakePoint(7.1, 5.4)];
        [path lineToPoint:NSMakePoint(11.5, 10.9)];
    } else if (mark == CheckMark::dash) {
        [path moveToPoint:NSMakePoint(5, 8)];
        [path lineToPoint:NSMakePoint(11, 8)];
    }
    [path setLineWidth:1.9];
    [path setLineCapStyle:NSRoundLineCapStyle];
    [path setLineJoinStyle:NSRoundLineJoinStyle];
    return path;
}

struct BoxColors {
    NSColor *fill;
    NSColor *border;
};

BoxColors colorsOf(CheckMark mark, bool isEnabled) {
    const auto *colors = TNThemeCurrentColors();
    if (mark == CheckMark::none) {
        return {isEnabled ? colors->control : colors->controlPressed, colors->boxBorder};
    }
    return isEnabled ? BoxColors{colors->accentFill, colors->accent}
                     : BoxColors{colors->boxBorder, colors->boxBorder};
}

void installCheckBox(NSString *name, CheckMark mark, bool isEnabled) {
    TNThemeInstallImage(name, NSMakeSize(boxSize, boxSize), ^(NSRect bounds) {
        const auto box = colorsOf(mark, isEnabled);
        NSBezierPath *path = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect(bounds, 1.5, 1.5)
                                                             xRadius:3.5
                                                             yRadius:3.5];
        [box.fill set];
        [path fill];
        [box.border set];
        [path setLineWidth:1];
        [path stroke];
        [(isEnabled ? TNThemeCurrentColors()->accentText : TNThemeCurrentColors()->control) set];
        [pathOf(mark) stroke];
    });
}

/// As it is, and as it is when it cannot be changed.
void installCheckBoxes(NSString *name, CheckMark mark) {
    installCheckBox(name, mark, true);
    installCheckBox(TNThemeDisabledImageName(name), mark, false);
}

/// Nothing but a name.
void installBlank(NSString *name) {
    NSBitmapImageRep *pixel = [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                                                       pixelsWide:1
                                                                       pixelsHigh:1
                                                                    bitsPerSample:8
                                                                  samplesPerPixel:4
                                                                         hasAlpha:YES
                                                                         isPlanar:NO
                                                                   colorSpaceName:NSCalibratedRGBColorSpace
                                                                      bytesPerRow:4
                                                                     bitsPerPixel:32] autorelease];
    std::memset([pixel bitmapData], 0, 4);
    showUnderName(pixel, name);
}

} // namespace

NSString *const TNThemeMixedSwitchImage = @"TNSwitchMixed";

NSString *TNThemeDisabledImageName(NSString *name) {
    return [name stringByAppendingString:@"Disabled"];
}

void TNThemeInstallImage(NSString *name, NSSize size, void (^drawing)(NSRect bounds)) {
    // One for all, as large as the largest: behind each is a window of its own.
    constexpr CGFloat canvasSize = 48;
    static NSImage *const canvas = [[NSImage alloc] initWithSize:NSMakeSize(canvasSize, canvasSize)];
    const NSRect bounds = NSMakeRect(0, 0, size.width, size.height);
    [canvas lockFocus];
    NSRectFillUsingOperation(bounds, NSCompositingOperationClear);
    drawing(bounds);
    // Pixels: only they can be scaled and kept in files.
    NSBitmapImageRep *pixels = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:bounds] autorelease];
    [canvas unlockFocus];
    showUnderName(pixels, name);
}

void TNThemeInstallImages() {
    installCheckBoxes(@"GSSwitch", CheckMark::none);
    installCheckBoxes(@"GSSwitchSelected", CheckMark::tick);
    installCheckBoxes(TNThemeMixedSwitchImage, CheckMark::dash);
    // The arrow of the default button, the marks of menu items, and the parts of a scroller.
    for (NSString *name in
        [NSArray arrayWithObjects:@"common_ret", @"common_retH", @"GSMenuSelected", @"GSMenuMixed",
                 @"common_ArrowUp", @"common_ArrowUpH", @"common_ArrowDown", @"common_ArrowDownH",
                 @"common_ArrowLeft", @"common_ArrowLeftH", @"common_ArrowRight", @"common_ArrowRightH",
                 @"common_Dimple", @"common_DimpleHoriz", nil]) {
        installBlank(name);
    }
    TNThemeInstallPanelImages();
}
