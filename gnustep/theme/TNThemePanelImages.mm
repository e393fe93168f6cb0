// Wrong: the pictures of the open panel and of pop-up buttons: folders and arrows. GNUstep GUI 0.29 has them
// in files, from another age, and they do not fit flat controls.

#import "TNTheme.h"

#import "gnustep/start/LayoutDirection.h"

namespace {

NSColor *const *folderColors() {
    static NSColor *const colors[] = {
        [[NSColor colorWithCalibratedRed:0.36 green:0.62 blue:0.91 alpha:1] retain],
        [[NSColor colorWithCalibratedRed:0.49 green:0.73 blue:0.97 alpha:1] retain],
    };
    return colors;
}

NSBezierPath *line(std::initializer_list<NSPoint> points, CGFloat width) {
    NSBezierPath *path = [NSBezierPath bezierPath];
    bool isFirst = true;
    for (const NSPoint &point : points) {
        if (isFirst) {
            [path moveToPoint:point];
        } else {
            [path lineToPoint:point];
        }
        isFirst = false;
    }
    [path setLineWidth:width];
    [path setLineCapStyle:NSRoundLineCapStyle];
    [path setLineJoinStyle:NSRoundLineJoinStyle];
    return path;
}

NSBezierPath *box(CGFloat left, CGFloat bottom, CGFloat width, CGFloat height, CGFloat radius) {
    return [NSBezierPath bezierPathWithRoundedRect:NSMakeRect(left, bottom, width, height)
                                           xRadius:radius
                                           yRadius:radius];
}

void drawFolder(NSRect) {
    [folderColors()[0] set];
    [box(4, 20, 20, 20, 3) fill];
    [box(4, 9, 40, 27, 3) fill];
    [folderColors()[1] set];
    [box(4, 9, 40, 23, 3) fill];
}

void drawFile(NSRect) {
    const auto *colors = TNThemeCurrentColors();
    NSBezierPath *sheet = line({{10, 4}, {38, 4}, {38, 33}, {27, 44}, {10, 44}}, 1);
    [sheet closePath];
    [[NSColor whiteColor] set];
    [sheet fill];
    [colors->knob set];
    [sheet stroke];
    [line({{27, 44}, {27, 33}, {38, 33}}, 1) stroke];
}

void drawHome(NSRect) {
    [TNThemeCurrentColors()->secondaryText set];
    [line({{4, 11}, {12, 19}, {20, 11}}, 1.6) stroke];
    [line({{6.5, 10}, {6.5, 4.5}, {17.5, 4.5}, {17.5, 10}}, 1.6) stroke];
}

void drawArrowOnward(NSRect) {
    const CGFloat ahead = TNReadsFromRightToLeft() ? -1.5 : 1.5;
    [TNThemeCurrentColors()->secondaryText set];
    [line({{5 - ahead, 2}, {5 + ahead, 5}, {5 - ahead, 8}}, 1.3) stroke];
}

void drawArrowDown(NSRect) {
    [TNThemeCurrentColors()->secondaryText set];
    [line({{2, 6.5}, {5, 3.5}, {8, 6.5}}, 1.3) stroke];
}

void drawUpAndDown(NSRect) {
    [TNThemeCurrentColors()->secondaryText set];
    [line({{3, 7.5}, {5.5, 10}, {8, 7.5}}, 1.3) stroke];
    [line({{3, 4.5}, {5.5, 2}, {8, 4.5}}, 1.3) stroke];
}

const struct {
    NSString *name;
    NSSize size;
    void (*draw)(NSRect bounds);
} pictures[] = {
    {@"NSFolder", {48, 48}, drawFolder},
    {@"common_DocsFolder", {48, 48}, drawFolder},
    {@"common_DownloadFolder", {48, 48}, drawFolder},
    {@"common_GSFolder", {48, 48}, drawFolder},
    {@"common_ImageFolder", {48, 48}, drawFolder},
    {@"common_LibraryFolder", {48, 48}, drawFolder},
    {@"common_MusicFolder", {48, 48}, drawFolder},
    {@"common_VideoFolder", {48, 48}, drawFolder},
    {@"common_ApplicationFolder", {48, 48}, drawFolder},
    {@"common_Desktop", {48, 48}, drawFolder},
    {@"common_HomeDirectory", {48, 48}, drawFolder},
    {@"common_Unknown", {48, 48}, drawFile},
    {@"common_Home", {24, 24}, drawHome},
    {@"GSMenuArrow", {10, 10}, drawArrowOnward},
    {@"common_3DArrowRightH", {10, 10}, drawArrowOnward},
    {@"common_3DArrowDown", {10, 10}, drawArrowDown},
    {@"common_Nibble", {11, 12}, drawUpAndDown},
};

} // namespace

void TNThemeInstallPanelImages() {
    for (const auto &picture : pictures) {
        void (*const draw)(NSRect) = picture.draw;
        TNThemeInstallImage(picture.name, picture.size, ^(NSRect bounds) {
            draw(bounds);
        });
    }
}
