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
        .secondaryText = rgb(0x63676E),
        .disabledText = rgb(0x696D74),
        .selectedText = rgb(0x9CC6FB),
        .border = rgb(0xD2D4D9),
        .controlBorder = rgb(0x858991),
        .boxBorder = rgb(0x787C84),
        .control = rgb(0xFFFFFF),
        .controlPressed = rgb(0xE4E6EA),
        .controlDisabled = rgb(0xF5F5F7),
        .header = rgb(0xFAFAFB),
        .knob = rgb(0x858991),
        .accent = rgb(0x2F73DA),
        .accentFill = rgb(0x2F73DA),
        .accentText = rgb(0xFFFFFF),
    };
}

TNThemeColors makeDark() {
    return {
        .window = rgb(0x1C1F21),
        .surface = rgb(0x1C1F21),
        .alternateRow = rgb(0x23272A),
        .selectedRow = rgb(0x2B4A7A),
        .selectedRowInactive = rgb(0x3A3E43),
        .text = rgb(0xEDEEF0),
        .secondaryText = rgb(0xA0A5AC),
        .disabledText = rgb(0x8E939A),
        .selectedText = rgb(0x3563B0),
        .border = rgb(0x3C4046),
        .controlBorder = rgb(0x767B82),
        .boxBorder = rgb(0x9CA1A8),
        .control = rgb(0x24272A),
        .controlPressed = rgb(0x31353A),
        .controlDisabled = rgb(0x1C1F21),
        .header = rgb(0x24282B),
        .knob = rgb(0x767B82),
        .accent = rgb(0x6BA6FF),
        .accentFill = rgb(0x2F73DA),
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
        {@"controlShadowColor", colors.controlBorder},
        {@"controlDarkShadowColor", colors.controlBorder},
        {@"controlTextColor", colors.text},
        {@"disabledControlTextColor", colors.disabledText},
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
        {@"selectedMenuItemColor", colors.accentFill},
        {@"selectedMenuItemTextColor", colors.accentText},
        {@"selectedTextBackgroundColor", colors.selectedText},
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
