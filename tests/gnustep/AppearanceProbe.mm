#include "AppearanceProbe.h"

#include "Probe.h"

#import <AppKit/AppKit.h>
#import <QuartzCore/QuartzCore.h>

#include <algorithm>
#include <cmath>

namespace tarnwick::probe {

namespace {

constexpr double side = 40;

/// A window with just this view, which is displayed, and the view's pixels.
NSBitmapImageRep *pixelsOf(NSView *view, NSColor *behind = nil) {
    NSWindow *window = [[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, 200, 100)
                                                   styleMask:NSWindowStyleMaskBorderless
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
    if (behind) {
        [[window contentView] setWantsLayer:YES];
        [[[window contentView] layer] setBackgroundColor:[behind CGColor]];
    }
    [[window contentView] addSubview:view];
    [window orderFront:nil];
    [window display];
    [view lockFocus];
    NSBitmapImageRep *pixels = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
    [view unlockFocus];
    return pixels;
}

NSColor *colorAt(NSBitmapImageRep *pixels, NSInteger column, NSInteger row) {
    return [[pixels colorAtX:column y:row] colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
}

double brightness(NSColor *color) {
    return ([color redComponent] + [color greenComponent] + [color blueComponent]) / 3;
}

/// Leaves out a border of two pixels.
double ink(NSBitmapImageRep *pixels) {
    const double background = brightness(colorAt(pixels, 3, [pixels pixelsHigh] - 4));
    int different = 0;
    int all = 0;
    for (NSInteger row = 2; row < [pixels pixelsHigh] - 2; ++row) {
        for (NSInteger column = 2; column < [pixels pixelsWide] - 2; ++column) {
            ++all;
            different += std::abs(brightness(colorAt(pixels, column, row)) - background) > 0.02 ? 1 : 0;
        }
    }
    return static_cast<double>(different) / all;
}

NSButton *makeCheckBox(CheckBox state) {
    NSButton *box = [[[NSButton alloc] initWithFrame:NSMakeRect(10, 10, 18, 18)] autorelease];
    [box setButtonType:NSButtonTypeSwitch];
    [box setTitle:@""];
    [box setAllowsMixedState:YES];
    const bool passesMixed = state == CheckBox::mixed || state == CheckBox::onAfterMixed;
    [box setState:passesMixed ? NSControlStateValueMixed : NSControlStateValueOff];
    if (state == CheckBox::on || state == CheckBox::onAfterMixed) {
        [box setState:NSControlStateValueOn];
    }
    return box;
}

} // namespace

double brightnessOfTabView(bool toldToDrawNone) {
    @autoreleasepool {
        startUp();
        NSTabView *tabs = [[[NSTabView alloc] initWithFrame:NSMakeRect(10, 10, 150, 80)] autorelease];
        [tabs setTabViewType:NSNoTabsNoBorder];
        if (toldToDrawNone) {
            [tabs setDrawsBackground:NO];
        }
        return brightness(colorAt(pixelsOf(tabs, [NSColor blackColor]), 75, 40));
    }
}

double inkOfBareTabView() {
    @autoreleasepool {
        startUp();
        NSTabView *tabs = [[[NSTabView alloc] initWithFrame:NSMakeRect(10, 10, 150, 80)] autorelease];
        [tabs setTabViewType:NSNoTabsNoBorder];
        for (NSString *label in [NSArray arrayWithObjects:@"One", @"Two", nil]) {
            NSTabViewItem *item = [[[NSTabViewItem alloc] initWithIdentifier:label] autorelease];
            [item setLabel:label];
            [tabs addTabViewItem:item];
        }
        return ink(pixelsOf(tabs));
    }
}

double saturationOfCheckBox(bool enabled) {
    @autoreleasepool {
        startUp();
        NSButton *box = [[[NSButton alloc] initWithFrame:NSMakeRect(10, 10, 18, 18)] autorelease];
        [box setButtonType:NSButtonTypeSwitch];
        [box setTitle:@""];
        [box setState:NSControlStateValueOn];
        [box setEnabled:enabled];
        NSBitmapImageRep *pixels = pixelsOf(box);
        double highest = 0;
        for (NSInteger column = 0; column < [pixels pixelsWide]; ++column) {
            highest = std::max<double>(highest, [colorAt(pixels, column, 9) saturationComponent]);
        }
        return highest;
    }
}

std::vector<double> pictureOfCheckBox(CheckBox state) {
    @autoreleasepool {
        startUp();
        NSBitmapImageRep *pixels = pixelsOf(makeCheckBox(state));
        std::vector<double> picture;
        for (NSInteger row = 0; row < [pixels pixelsHigh]; ++row) {
            for (NSInteger column = 0; column < [pixels pixelsWide]; ++column) {
                picture.push_back(brightness(colorAt(pixels, column, row)));
            }
        }
        return picture;
    }
}

int spokenValueOfCheckBox(CheckBox state) {
    @autoreleasepool {
        startUp();
        return [[makeCheckBox(state) accessibilityValue] intValue];
    }
}

bool folderPictureSurvivesScaling() {
    @autoreleasepool {
        startUp();
        NSImage *icon = [[NSWorkspace sharedWorkspace] iconForFile:@"/usr"];
        NSImage *small = [[[NSImage alloc] initWithSize:NSMakeSize(side, side)] autorelease];
        [small lockFocus];
        [icon drawInRect:NSMakeRect(0, 0, side, side)
                fromRect:NSZeroRect
               operation:NSCompositeCopy
                fraction:1];
        [small unlockFocus];
        NSBitmapImageRep *pixels = [NSBitmapImageRep imageRepWithData:[small TIFFRepresentation]];
        NSColor *middle = colorAt(pixels, 20, 22);
        return [middle blueComponent] > [middle redComponent] + 0.2 && [middle alphaComponent] == 1 &&
               [colorAt(pixels, 0, 0) alphaComponent] == 0;
    }
}

} // namespace tarnwick::probe
