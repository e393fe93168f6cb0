#include "tests/gui/Cells.h"

#include "tests/gui/Pixels.h"
#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"

#import <AppKit/AppKit.h>

namespace tarnwick::gui {
namespace {

NSView *cellAt(RuleCategory category, long row, const std::string &column) {
    NSTableView *table = tableOf(category);
    [table scrollRowToVisible:row];
    return [table viewAtColumn:[table columnWithIdentifier:toNSString(column)] row:row makeIfNecessary:YES];
}

} // namespace

std::string backgroundStylesOfText(RuleCategory table, long row, const std::string &column) {
    id cell = cellAt(table, row, column);
    std::string styles;
    for (const NSBackgroundStyle style : {NSBackgroundStyleDark, NSBackgroundStyleLight}) {
        if ([cell respondsToSelector:@selector(setBackgroundStyle:)]) {
            [cell setBackgroundStyle:style];
        }
        styles += std::to_string([[controlIn(table, row, column) cell] backgroundStyle]);
    }
    return styles;
}

bool cellMovesWindow(RuleCategory table, long row, const std::string &column) {
    return [cellAt(table, row, column) mouseDownCanMoveWindow] ||
           [controlIn(table, row, column) mouseDownCanMoveWindow];
}

bool cellTextIsSelectable(RuleCategory table, long row, const std::string &column) {
    return [static_cast<NSTextField *>(controlIn(table, row, column)) isSelectable];
}

double drawnShareOfText(RuleCategory table, long row, const std::string &column) {
    NSView *text = controlIn(table, row, column);
    const NSRect place = [text convertRect:NSInsetRect([text visibleRect], 1, 3) toView:nil];
    const Pixels pixels(settingsWindow());
    const auto ground = pixels.groundOf(place);
    CGFloat end = NSMinX(place);
    for (CGFloat x = NSMinX(place); x < NSMaxX(place); ++x) {
        if (pixels.contrastIn(NSMakeRect(x, NSMinY(place), 1, NSHeight(place)), ground) > 1) {
            end = x;
        }
    }
    return (end - NSMinX(place)) / NSWidth(place);
}

} // namespace tarnwick::gui
