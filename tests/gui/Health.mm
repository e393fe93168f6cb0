#include "tests/gui/Health.h"

#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "front/WarningTextField.h"

#import <AppKit/AppKit.h>

#include <algorithm>
#include <cmath>

namespace tarnwick::gui {
namespace {

double linear(CGFloat part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

/// As the guidelines for accessible web content define it.
double luminance(NSColor *color) {
    NSColor *rgb = [color colorUsingColorSpaceName:NSDeviceRGBColorSpace];
    return 0.2126 * linear([rgb redComponent]) + 0.7152 * linear([rgb greenComponent]) +
           0.0722 * linear([rgb blueComponent]);
}

double contrast(NSColor *one, NSColor *other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

CellLook cellLook(RuleCategory table, long row, const std::string &column) {
    auto *field = static_cast<WarningTextField *>(controlIn(table, row, column));
    const bool isSlanted =
        ([[NSFontManager sharedFontManager] traitsOfFont:[field font]] & NSItalicFontMask) != 0;
    const bool warns = [field warns] && ![[field textColor] isEqual:[NSColor controlTextColor]];
    return {warns, isSlanted, toString([field toolTip]), toString([field accessibilityHelp])};
}

double listHeight(RuleCategory table) {
    return NSHeight([[tableOf(table) enclosingScrollView] frame]);
}

void comeBack() {
    [[NSNotificationCenter defaultCenter] postNotificationName:NSApplicationDidBecomeActiveNotification
                                                        object:NSApp];
}

bool warningIsPlainOnStrongColour() {
    WarningTextField *field = [[[WarningTextField alloc] initWithFrame:NSMakeRect(0, 0, 1, 1)] autorelease];
    NSView *frame = [settingsWindow() contentView];
    [frame addSubview:field];
    [field setWarns:YES];
    [[field cell] setBackgroundStyle:NSBackgroundStyleDark];
    [field display];
    const bool isPlain = [[field textColor] isEqual:[NSColor controlTextColor]];
    [[field cell] setBackgroundStyle:NSBackgroundStyleLight];
    [field display];
    const bool warnsAgain = ![[field textColor] isEqual:[NSColor controlTextColor]];
    [field removeFromSuperview];
    return isPlain && warnsAgain;
}

std::vector<double> contrastsOfWarning() {
    WarningTextField *field = [[[WarningTextField alloc] init] autorelease];
    [field setWarns:YES];
    std::vector<double> found;
    for (NSColor *ground : {[NSColor textBackgroundColor],
             [NSColor selectedControlColor],
             [NSColor secondarySelectedControlColor],
             [NSColor windowBackgroundColor]}) {
        found.push_back(contrast([field textColor], ground));
    }
    return found;
}

} // namespace tarnwick::gui
