#pragma once

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSTheme.h>

/// The colours of everything that the theme and the layer draw. They live for the whole run. Text keeps a
/// contrast of 4.5 to every ground that it is drawn on, pictures and the borders of controls one of 3.
struct TNThemeColors {
    NSColor *window;
    NSColor *surface;
    NSColor *alternateRow;
    NSColor *selectedRow;
    NSColor *selectedRowInactive;
    NSColor *text;
    NSColor *secondaryText;
    /// Of what cannot be used just now; to be read all the same.
    NSColor *disabledText;
    /// What is selected while a text is edited.
    NSColor *selectedText;
    /// Between parts that would be told apart without it.
    NSColor *border;
    /// Around what can be used: buttons, fields, lists.
    NSColor *controlBorder;
    /// Around a check box, which also stands on the ground of a selected row.
    NSColor *boxBorder;
    NSColor *control;
    NSColor *controlPressed;
    NSColor *controlDisabled;
    NSColor *header;
    NSColor *knob;
    /// Lines: the focus ring, the mark of a drop.
    NSColor *accent;
    /// A ground for `accentText`.
    NSColor *accentFill;
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
/// The name that the picture of that name has when its control is disabled, if there is one.
NSString *TNThemeDisabledImageName(NSString *name);
/// Those of the open panel and of pop-up buttons; part of the above.
void TNThemeInstallPanelImages();
/// Draws a picture and puts it in the place of GNUstep's of that name.
void TNThemeInstallImage(NSString *name, NSSize size, void (^drawing)(NSRect bounds));
/// The system's named colours in the current appearance; autoreleased.
NSColorList *TNThemeMakeColorList();

/// Whether a button is a box that shows its state; default buttons too have a second picture.
bool TNIsCheckBox(NSButtonCell *cell);
/// Of the corners of a push button.
constexpr CGFloat TNThemeButtonRadius = 6;
/// A path around a rectangle, on whole pixels, for a line of one point.
NSBezierPath *TNThemeHairline(NSRect rect, CGFloat radius);

/// The field that is edited in a window; nil when none is.
NSTextField *TNEditedFieldOf(NSWindow *window);
/// The box in which a field is edited, in its own coordinates; it reaches beyond a field without bezel.
NSRect TNFrameOfEditedField(NSTextField *field);
/// Draws what such a field itself does not: the edge of its box, and the room around the text.
void TNDrawBoxOfEditedField(NSTextField *field, NSRect box);

/// Posted by a window when something else has the keyboard, or may have.
extern NSString *const TNWindowDidMoveFocus;
