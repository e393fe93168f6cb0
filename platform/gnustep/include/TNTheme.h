#pragma once

#import <AppKit/AppKit.h>

/// The colours of everything that the theme and the layer draw. Objects live for the whole run.
struct TNThemeColors {
    NSColor *window;
    NSColor *surface;
    NSColor *alternateRow;
    NSColor *selectedRow;
    NSColor *selectedRowInactive;
    NSColor *text;
    NSColor *secondaryText;
    NSColor *disabledText;
    NSColor *border;
    NSColor *control;
    NSColor *controlPressed;
    NSColor *header;
    NSColor *accent;
    NSColor *accentText;
};

/// The table in use.
const TNThemeColors *TNThemeCurrentColors();
