#pragma once

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSTheme.h>

/// The colours of everything that the theme and the layer draw. They live for the whole run.
struct TNThemeColors {
    NSColor *window;
    NSColor *surface;
    NSColor *alternateRow;
    NSColor *selectedRow;
    NSColor *selectedRowInactive;
    NSColor *text;
    NSColor *secondaryText;
    NSColor *border;
    NSColor *control;
    NSColor *controlPressed;
    NSColor *header;
    NSColor *knob;
    NSColor *accent;
    NSColor *accentText;
};

enum class TNThemeAppearance { light, dark };

/// The table in use.
const TNThemeColors *TNThemeCurrentColors();
/// Takes effect for what is drawn from now on.
void TNThemeUseAppearance(TNThemeAppearance appearance);

/// A clean, flat theme in the manner of the Mac.
@interface TNTheme : GSTheme
@end

/// Draws the pictures of check boxes in the current colours, under the
/// names by which GNUstep asks for them.
void TNThemeInstallImages();
/// The name of the picture that GNUstep has none for: a check box of which some is on and some off.
extern NSString *const TNThemeMixedSwitchImage;
/// Those of the open panel and of pop-up buttons; part of the above.
void TNThemeInstallPanelImages();
/// Draws a picture and puts it in the place of GNUstep's of that name.
void TNThemeInstallImage(NSString *name, NSSize size, void (^drawing)(NSRect bounds));
/// The system's named colours in the current appearance; autoreleased.
NSColorList *TNThemeMakeColorList();

/// A path around a rectangle, on whole pixels, for a line of one point.
NSBezierPath *TNThemeHairline(NSRect rect, CGFloat radius);
