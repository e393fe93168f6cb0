#include "TextProbe.h"

#include "Probe.h"

#import "TNTheme.h"
#import <AppKit/AppKit.h>

#include <algorithm>
#include <cmath>

namespace tarnwick::probe {

namespace {

NSTextField *fieldWith(const std::string &text) {
    static bool isUp = false;
    if (!isUp) {
        startUp();
        isUp = true;
    }
    NSTextField *field = [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 10, 180, 24)] autorelease];
    [field setBezeled:NO];
    [field setStringValue:[NSString stringWithUTF8String:text.c_str()]];
    return field;
}

NSBitmapImageRep *pixelsOf(NSTextField *field) {
    NSWindow *window = [[[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 200, 44)
                                                    styleMask:NSWindowStyleMaskBorderless
                                                      backing:NSBackingStoreBuffered
                                                        defer:NO] autorelease];
    [window setReleasedWhenClosed:NO];
    [[window contentView] addSubview:field];
    [window orderFront:nil];
    [window display];
    [field lockFocus];
    NSBitmapImageRep *pixels =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[field bounds]] autorelease];
    [field unlockFocus];
    return pixels;
}

} // namespace

bool looksLike(const std::string &one, const std::string &other) {
    @autoreleasepool {
        return [[pixelsOf(fieldWith(one)) TIFFRepresentation]
            isEqualToData:[pixelsOf(fieldWith(other)) TIFFRepresentation]];
    }
}

bool isColoured(const std::string &text) {
    @autoreleasepool {
        NSBitmapImageRep *pixels = pixelsOf(fieldWith(text));
        for (NSInteger y = 2; y < [pixels pixelsHigh] - 2; ++y) {
            for (NSInteger x = 2; x < [pixels pixelsWide] - 2; ++x) {
                NSColor *color = [[pixels colorAtX:x y:y] colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
                if (std::abs([color redComponent] - [color blueComponent]) > 0.2) {
                    return true;
                }
            }
        }
        return false;
    }
}

double insertionPoint(TextSide side, double width) {
    @autoreleasepool {
        startUp();
        NSTextView *view = [[[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, width, 20)] autorelease];
        [view setFieldEditor:YES];
        [view setAlignment:side == TextSide::left     ? NSLeftTextAlignment
                           : side == TextSide::middle ? NSCenterTextAlignment
                                                      : NSRightTextAlignment];
        return NSMinX([[view layoutManager] insertionPointRectForCharacterIndex:0
                                                                inTextContainer:[view textContainer]]);
    }
}

std::pair<double, double> boxOfEditedField() {
    @autoreleasepool {
        NSTextField *field = fieldWith("Name");
        const NSRect box = TNFrameOfEditedField(field);
        return {NSMinX(box) - NSMinX([field bounds]), NSMaxX(box) - NSMaxX([field bounds])};
    }
}

double widthOf(const std::string &text) {
    @autoreleasepool {
        return [[fieldWith(text) attributedStringValue] size].width;
    }
}

} // namespace tarnwick::probe
