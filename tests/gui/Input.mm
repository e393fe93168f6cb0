#include "tests/gui/Input.h"

#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "front/SettingsViewController.h"
#import "tests/driving/Driving.h"

namespace tarnwick::gui {
namespace {

void clickAt(NSPoint place, int clicks = 1) {
    driving::click(settingsWindow(), place, clicks);
}

void pressKey(NSString *characters, NSUInteger modifiers = 0) {
    driving::press(settingsWindow(), characters, modifiers);
}

NSString *charactersOf(Key key) {
    unichar character = 0;
    switch (key) {
    case Key::returnKey:
        character = NSCarriageReturnCharacter;
        break;
    case Key::tab:
        character = NSTabCharacter;
        break;
    case Key::escape:
        character = 0x1B;
        break;
    case Key::space:
        character = ' ';
        break;
    case Key::deleteKey:
        character = NSDeleteCharacter;
        break;
    case Key::up:
        character = NSUpArrowFunctionKey;
        break;
    case Key::down:
        character = NSDownArrowFunctionKey;
        break;
    }
    return [NSString stringWithCharacters:&character length:1];
}

void drag(NSTableView *table, long row, double height) {
    constexpr CGFloat grip = 120;
    const auto inWindow = [table](double y) { return [table convertPoint:NSMakePoint(grip, y) toView:nil]; };
    driving::drag(settingsWindow(), inWindow(NSMidY([table rectOfRow:row])), inWindow(height));
}

} // namespace

void clickPageButton(Page page) {
    driving::click([settingsController() buttonOf:page]);
}

void clickCell(RuleCategory table, long row, const std::string &column, int clicks) {
    NSTableView *view = tableOf(table);
    [view scrollRowToVisible:row];
    const NSInteger index = [view columnWithIdentifier:toNSString(column)];
    const NSRect frame = [view frameOfCellAtColumn:index row:row];
    clickAt([view convertPoint:NSMakePoint(NSMinX(frame) + 30, NSMidY(frame)) toView:nil], clicks);
}

void clickEmptySpace(RuleCategory table) {
    NSTableView *view = tableOf(table);
    const NSRect visible = [view visibleRect];
    clickAt([view convertPoint:NSMakePoint(NSMidX(visible), NSMaxY(visible) - 5) toView:nil]);
}

void clickCheckBox(RuleCategory table, long row, const std::string &column) {
    driving::click(controlIn(table, row, column));
}

void clickButton(const std::string &title) {
    if (NSButton *button = visibleButton([settingsWindow() contentView], toNSString(title))) {
        const bool isCheckBox = [button imagePosition] == NSImageLeft;
        const NSPoint left = [button convertPoint:NSMakePoint(9, NSMidY([button bounds])) toView:nil];
        clickAt(isCheckBox ? left : driving::middleOf(button));
    }
}

void dragRowIntoGap(RuleCategory table, long row, long gap) {
    NSTableView *view = tableOf(table);
    drag(view, row, static_cast<double>(gap) * [view rowHeight] + (gap == 0 ? 2 : 0));
}

void dragRowOntoRow(RuleCategory table, long row, long target) {
    NSTableView *view = tableOf(table);
    drag(view, row, NSMidY([view rectOfRow:target]));
}

void scrollToRow(RuleCategory table, long row) {
    [tableOf(table) scrollRowToVisible:row];
    driving::settle();
}

void press(Key key) {
    pressKey(charactersOf(key));
}

void pressCommand(char key) {
    pressKey([NSString stringWithFormat:@"%c", key], NSEventModifierFlagCommand);
}

void pressShiftCommand(char key) {
    pressKey([[NSString stringWithFormat:@"%c", key] uppercaseString],
        NSEventModifierFlagShift | NSEventModifierFlagCommand);
}

void pressOptionCommand(Key key) {
    pressKey(charactersOf(key), NSEventModifierFlagOption | NSEventModifierFlagCommand);
}

void type(const std::string &text) {
    driving::type(settingsWindow(), toNSString(text));
}

void typeFast(const std::string &text) {
    NSString *characters = toNSString(text);
    for (NSUInteger index = 0; index < [characters length]; ++index) {
        driving::postKey(settingsWindow(), [characters substringWithRange:NSMakeRange(index, 1)]);
    }
    driving::settle();
}

void reloadTable(RuleCategory table) {
    [tableOf(table) reloadData];
    driving::settle();
}

void becomeActive() {
    [NSApp deactivate];
    driving::settle();
    [NSApp activateIgnoringOtherApps:YES];
    driving::settle();
}

void sendAction(const std::string &selector) {
    [NSApp sendAction:NSSelectorFromString(toNSString(selector)) to:settingsController() from:nil];
    driving::settle();
}

} // namespace tarnwick::gui
