#include "tests/gui/Shown.h"

#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "front/SettingsViewController.h"

#include <cstdlib>

namespace tarnwick::gui {
namespace {

NSButton *buttonTitled(const std::string &title) {
    return visibleButton([settingsWindow() contentView], toNSString(title));
}

StepItem itemFor(SEL action) {
    for (NSMenuItem *submenu in [[NSApp mainMenu] itemArray]) {
        [[submenu submenu] update];
        for (NSMenuItem *item in [[submenu submenu] itemArray]) {
            if ([item action] && sel_isEqual([item action], action)) {
                return {toString([item title]), static_cast<bool>([item isEnabled])};
            }
        }
    }
    return {"(no such item)", false};
}

} // namespace

StepItem undoItem() {
    return itemFor(@selector(undo:));
}

StepItem redoItem() {
    return itemFor(@selector(redo:));
}

int shownPage() {
    NSTabView *tabView = [settingsController() tabView];
    return static_cast<int>([tabView indexOfTabViewItem:[tabView selectedTabViewItem]]);
}

long rowCount(RuleCategory table) {
    return [tableOf(table) numberOfRows];
}

bool rowIsInSight(RuleCategory table, long row) {
    return NSContainsRect([tableOf(table) visibleRect], [tableOf(table) rectOfRow:row]);
}

long selectedRow(RuleCategory table) {
    return [tableOf(table) selectedRow];
}

std::string cellText(RuleCategory table, long row, const std::string &column) {
    return toString([controlIn(table, row, column) stringValue]);
}

bool cellIsOn(RuleCategory table, long row, const std::string &column) {
    return [static_cast<NSButton *>(controlIn(table, row, column)) state] == NSControlStateValueOn;
}

bool cellIsEnabled(RuleCategory table, long row, const std::string &column) {
    return [controlIn(table, row, column) isEnabled];
}

long builtRows(RuleCategory table) {
    NSTableView *view = tableOf(table);
    long count = 0;
    for (NSInteger row = 0; row < [view numberOfRows]; ++row) {
        count += [view viewAtColumn:0 row:row makeIfNecessary:NO] ? 1 : 0;
    }
    return count;
}

double shownHeight(RuleCategory table) {
    return NSHeight([[tableOf(table) enclosingScrollView] frame]);
}

bool isSaidToBeCurrent(Page page) {
    return static_cast<bool>([[settingsController() buttonOf:page] isAccessibilitySelected]);
}

bool removeButtonIsEnabled(RuleCategory table) {
    return [[settingsController() removeButtonOf:table] isEnabled];
}

bool buttonIsEnabled(const std::string &title) {
    return [buttonTitled(title) isEnabled];
}

bool buttonIsOn(const std::string &title) {
    return [buttonTitled(title) state] == NSControlStateValueOn;
}

bool buttonIsMixed(const std::string &title) {
    NSButton *button = buttonTitled(title);
    return [button state] == NSControlStateValueMixed && [[button accessibilityValue] intValue] == 2;
}

double roomRightOfTitle(const std::string &title) {
    NSButton *button = buttonTitled(title);
    const CGFloat drawn = [[button image] size].width + [[[button cell] attributedTitle] size].width;
    return NSWidth([button bounds]) - drawn;
}

bool showsText(const std::string &text) {
    NSString *wanted = toNSString(text);
    return firstView(pageView(), [wanted](NSView *view) {
        return [view isKindOfClass:[NSTextField class]] &&
               [[static_cast<NSTextField *>(view) stringValue] isEqualToString:wanted];
    }) != nil;
}

bool isEditing() {
    return [[settingsWindow() firstResponder] isKindOfClass:[NSText class]];
}

void takePicture(const std::string &name) {
    if (const char *folder = std::getenv("TARNWICK_PICTURES")) {
        [settingsWindow() display];
        [settingsWindow() flushWindow];
        if (std::system(("import -window root '" + std::string(folder) + "/" + name + ".png'").c_str()) !=
            0) {
            NSLog(@"No picture of %s", name.c_str());
        }
    }
}

} // namespace tarnwick::gui
