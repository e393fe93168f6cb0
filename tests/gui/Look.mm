#include "tests/gui/Look.h"

#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "front/Colors.h"
#import "front/LayerWindow.h"

#include "ui/WindowLayout.h"

#import <AppKit/AppKit.h>

#include <algorithm>

/// Remembers the appearance that was being drawn with when it was asked for its value.
@interface AskedColor : NSColor {
@public
    NSAppearance *asked;
}
@end

@implementation AskedColor

- (CGColorRef)CGColor {
    asked = [NSAppearance currentAppearance];
    return [[NSColor whiteColor] CGColor];
}

@end

namespace tarnwick::gui {
namespace {

struct Brightness {
    double average = 0;
    double highest = 0;
};

Brightness brightness(NSBitmapImageRep *pixels) {
    Brightness result;
    const NSInteger count = [pixels pixelsWide] * [pixels pixelsHigh];
    for (NSInteger index = 0; index < count; ++index) {
        NSColor *color = [[pixels colorAtX:index % [pixels pixelsWide] y:index / [pixels pixelsWide]]
            colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
        if ([color alphaComponent] == 0) {
            continue;
        }
        const double value = ([color redComponent] + [color greenComponent] + [color blueComponent]) / 3;
        result.average += value / static_cast<double>(count);
        result.highest = std::max(result.highest, value);
    }
    return result;
}

/// What is on the screen, without drawing it again.
NSBitmapImageRep *pixelsIn(NSRect rect) {
    NSView *content = [settingsWindow() contentView];
    [content lockFocus];
    NSBitmapImageRep *pixels = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:rect] autorelease];
    [content unlockFocus];
    return pixels;
}

Brightness brightnessIn(NSRect rect) {
    return brightness(pixelsIn(rect));
}

Colour colourIn(NSRect rect) {
    NSColor *color = [[pixelsIn(rect) colorAtX:1 y:1] colorUsingColorSpaceName:NSDeviceRGBColorSpace];
    return {[color redComponent], [color greenComponent], [color blueComponent], [color alphaComponent]};
}

NSRect cornerOfPage() {
    return NSMakeRect(NSWidth([[settingsWindow() contentView] bounds]) - 8, 4, 4, 4);
}

NSRect cornerOfSidebar() {
    return NSMakeRect(4, 4, 4, 4);
}

} // namespace

void announceAppearance() {
    @autoreleasepool {
        [[NSDistributedNotificationCenter defaultCenter]
            postNotificationName:@"AppleInterfaceThemeChangedNotification"
                          object:nil
                        userInfo:nil
              deliverImmediately:YES];
    }
}

double brightnessOfPage() {
    @autoreleasepool {
        return brightnessIn(cornerOfPage()).average;
    }
}

double brightnessOfSidebar() {
    @autoreleasepool {
        return brightnessIn(cornerOfSidebar()).average;
    }
}

void colourTheWindow(const Colour &colour) {
    @autoreleasepool {
        LayerWindow(settingsWindow()).setBackground(colour);
    }
}

Colour colourOfPage() {
    @autoreleasepool {
        return colourIn(cornerOfPage());
    }
}

Colour colourOfSidebar() {
    @autoreleasepool {
        return colourIn(cornerOfSidebar());
    }
}

std::string appearanceForLayers() {
    @autoreleasepool {
        NSView *view = [[[NSView alloc] initWithFrame:NSZeroRect] autorelease];
        AskedColor *color = [[[AskedColor alloc] init] autorelease];
        NSAppearance *other = [NSAppearance appearanceNamed:@"Another"];
        [NSAppearance setCurrentAppearance:other];
        setLayerBackground(view, color);
        const bool isBack = [NSAppearance currentAppearance] == other;
        [NSAppearance setCurrentAppearance:nil];
        return isBack ? toString([color->asked name]) : "not that of the drawing any more";
    }
}

double brightestOfPageTitles() {
    @autoreleasepool {
        const CGFloat top = NSHeight([[settingsWindow() contentView] bounds]);
        return brightnessIn(NSMakeRect(50, top - 100, sidebarWidth - 60, 40)).highest;
    }
}

double brightnessOfEmptyCheckBox() {
    @autoreleasepool {
        NSData *data = [[NSImage imageNamed:@"GSSwitch"] TIFFRepresentation];
        return brightness([NSBitmapImageRep imageRepWithData:data]).average;
    }
}

} // namespace tarnwick::gui
