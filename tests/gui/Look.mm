#include "tests/gui/Look.h"

#include "tests/gui/SettingsWindow.h"

#include "ui/WindowLayout.h"

#import <AppKit/AppKit.h>

#include <algorithm>

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
Brightness brightnessIn(NSRect rect) {
    NSView *content = [settingsWindow() contentView];
    [content lockFocus];
    NSBitmapImageRep *pixels = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:rect] autorelease];
    [content unlockFocus];
    return brightness(pixels);
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
        return brightnessIn(NSMakeRect(NSWidth([[settingsWindow() contentView] bounds]) - 8, 4, 4, 4))
            .average;
    }
}

double brightnessOfSidebar() {
    @autoreleasepool {
        return brightnessIn(NSMakeRect(4, 4, 4, 4)).average;
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
