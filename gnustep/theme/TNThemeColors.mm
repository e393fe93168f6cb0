// Missing: colours for light and dark, as of GNUstep GUI 0.29; and the system's named colours made of them.

#import "TNTheme.h"

namespace {

NSColor *rgb(unsigned value) {
    const auto part = [value](unsigned shift) { return static_cast<CGFloat>(value >> shift & 0xFF) / 255; };
    return [[NSColor colorWithCalibratedRed:part(16) green:part(8) blue:part(0) alpha:1] retain];
}

TNThemeColors makeLight() {
    return {
        .window = rgb(0xF5F5F7),
        .surface = rgb(0xFFFFFF),
        .alternateRow = rgb(0xF7F8FA),
        .selectedRow = rgb(0xCFE2FD),
        .selectedRowInactive = rgb(0xE1E3E6),
        .text = rgb(0x1D1D1F),
        .secondaryText = rgb(0x6B6F76),
        .border = rgb(0xD2D4D9),
        .control = rgb(0xFFFFFF),
        .controlPressed = rgb(0xE4E6EA),
        .header = rgb(0xFAFAFB),
        .knob = rgb(0xB9BCC2),
        .accent = rgb(0x2F73DA),
        .accentText = rgb(0xFFFFFF),
    };
}

TNThemeColors makeDark() {
    return {
        .window = rgb(0x1C1F21),
        .surface = rgb(0x24272A),
        .alternateRow = rgb(0x292C30),
        .selectedRow = rgb(0x2B4A7A),
        .selectedRowInactive = rgb(0x3A3E43),
        .text = rgb(0xEDEEF0),
        .secondaryText = rgb(0xA0A5AC),
        .border = rgb(0x43474D),
        .control = rgb(0x34383D),
        .controlPressed = rgb(0x454A50),
        .header = rgb(0x2A2D31),
        .knob = rgb(0x6A6F76),
        .accent = rgb(0x4C8DF0),
        .accentText = rgb(0xFFFFFF),
    };
}

TNThemeAppearance current = TNThemeAppearance::light;

} // namespace

const TNThemeColors *TNThemeCurrentColors() {
    static const TNThemeColors light = makeLight();
    static const TNThemeColors dark = makeDark();
    return current == TNThemeAppearance::dark ? &dark : &light;
}

void TNThemeUseAppearance(TNThemeAppearance appearance) {
    current = appearance;
}

NSColorList *TNThemeMakeColorList() {
    const auto &colors = *TNThemeCurrentColors();
    const struct {
        NSString *name;
        NSColor *color;
    } named[] = {
        {@"controlBackgroundColor", colors.surface},
        {@"controlColor", colors.window},
        {@"controlHighlightColor", colors.window},
        {@"controlLightHighlightColor", colors.window},
        {@"controlShadowColor", colors.border},
        {@"controlDarkShadowColor", colors.border},
        {@"controlTextColor", colors.text},
        {@"disabledControlTextColor", colors.secondaryText},
        {@"gridColor", colors.border},
        {@"headerColor", colors.header},
        {@"headerTextColor", colors.secondaryText},
        {@"highlightColor", colors.selectedRow},
        {@"keyboardFocusIndicatorColor", colors.accent},
        {@"knobColor", colors.knob},
        {@"rowBackgroundColor", colors.surface},
        {@"alternateRowBackgroundColor", colors.alternateRow},
        {@"scrollBarColor", colors.surface},
        {@"secondarySelectedControlColor", colors.selectedRowInactive},
        {@"selectedControlColor", colors.selectedRow},
        {@"selectedControlTextColor", colors.text},
        {@"selectedKnobColor", colors.knob},
        {@"selectedMenuItemColor", colors.accent},
        {@"selectedMenuItemTextColor", colors.accentText},
        {@"selectedTextBackgroundColor", colors.selectedRow},
        {@"selectedTextColor", colors.text},
        {@"secondaryLabelColor", colors.secondaryText},
        {@"shadowColor", colors.border},
        {@"textBackgroundColor", colors.surface},
        {@"textColor", colors.text},
        {@"toolTipColor", colors.surface},
        {@"toolTipTextColor", colors.text},
        {@"windowBackgroundColor", colors.window},
        {@"windowFrameColor", colors.border},
        {@"windowFrameTextColor", colors.text},
    };
    NSColorList *list = [[[NSColorList alloc] initWithName:@"System" fromFile:nil] autorelease];
    for (const auto &entry : named) {
        [list setColor:entry.color forKey:entry.name];
    }
    return list;
}
