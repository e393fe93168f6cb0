#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "front/MainInterface.h"
#import "front/SettingsViewController.h"

namespace tarnwick::gui {
namespace {

const MainInterface *application = nullptr;

} // namespace

void useInterface(const MainInterface &interface) {
    application = &interface;
}

SettingsViewController *settingsController() {
    return application->controller();
}

NSWindow *settingsWindow() {
    return application->window();
}

NSView *pageView() {
    return [[[settingsController() tabView] selectedTabViewItem] view];
}

NSTableView *tableOf(RuleCategory category) {
    return [settingsController() tableOf:category];
}

NSControl *controlIn(RuleCategory category, long row, const std::string &column) {
    NSTableView *table = tableOf(category);
    [table scrollRowToVisible:row];
    const NSInteger index = [table columnWithIdentifier:toNSString(column)];
    NSView *cell = [table viewAtColumn:index row:row makeIfNecessary:YES];
    if ([cell isKindOfClass:[NSControl class]]) {
        return static_cast<NSControl *>(cell);
    }
    return [[cell subviews] count] > 0 ? [[cell subviews] objectAtIndex:0] : nil;
}

NSButton *visibleButton(NSView *view, NSString *title) {
    return static_cast<NSButton *>(firstView(view, [title](NSView *each) {
        return [each isKindOfClass:[NSButton class]] &&
               [[static_cast<NSButton *>(each) title] isEqualToString:title];
    }));
}

} // namespace tarnwick::gui
