#import "front/OutletWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "front/Colors.h"
#import "front/FaultLineView.h"
#import "front/KeyViewLoop.h"
#import "front/NoticeBar.h"
#import "front/PreferenceSwitch.h"
#import "front/RuleTableView.h"
#import "front/SettingsViewController+Actions.h"
#import "front/SettingsViewController+Finding.h"

#include "ui/WindowLayout.h"

namespace tarnwick {
namespace {

/// On each switch of this key from `view` downwards.
void showForced(NSView *view, NSString *key, bool forced) {
    for (NSView *inner in [view subviews]) {
        if (![inner isKindOfClass:[PreferenceSwitch class]]) {
            showForced(inner, key, forced);
        } else if ([[static_cast<PreferenceSwitch *>(inner) key] isEqualToString:key]) {
            [static_cast<PreferenceSwitch *>(inner) setForced:forced];
        }
    }
}

/// The table that a view stands in; nil when it stands in none.
NSTableView *tableAround(NSView *view) {
    while (view && ![view isKindOfClass:[NSTableView class]]) {
        view = [view superview];
    }
    return static_cast<NSTableView *>(view);
}

} // namespace

NSTableView *OutletWindow::table(RuleCategory category) const {
    return [controller_ tableOf:category];
}

/// The one in which a field is being edited; nil when there is none.
NSTableView *OutletWindow::editedTable() const {
    id editor = [[[controller_ tabView] window] firstResponder];
    if (![editor isKindOfClass:[NSText class]] || ![editor isFieldEditor] ||
        ![[editor delegate] isKindOfClass:[NSTextField class]]) {
        return nil;
    }
    return tableAround(static_cast<NSTextField *>([editor delegate]));
}

/// The keyboard goes back to the table.
void OutletWindow::endEditing() {
    if (NSTableView *edited = editedTable()) {
        [[edited window] makeFirstResponder:edited];
    }
}

/// An edit that is just ending changes the list before its field is done; the field stays until then.
void OutletWindow::reload(RuleCategory category) {
    NSTableView *reloaded = table(category);
    if (!reloaded || reloaded != editedTable()) {
        [reloaded reloadData];
        return;
    }
    [reloaded performSelector:@selector(reloadDataUnlessEdited)
                   withObject:nil
                   afterDelay:0
                      inModes:[NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                       NSEventTrackingRunLoopMode, nil]];
}

long OutletWindow::selectedRow(RuleCategory category) const {
    NSTableView *selected = table(category);
    return selected ? [selected selectedRow] : -1;
}

long OutletWindow::numberOfRows(RuleCategory category) const {
    return [table(category) numberOfRows];
}

void OutletWindow::selectRow(RuleCategory category, long row) {
    if (row >= 0 && row < numberOfRows(category)) {
        [table(category) selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(row)]
                     byExtendingSelection:NO];
        scrollToRow(category, row);
    }
}

void OutletWindow::scrollToRow(RuleCategory category, long row) {
    [table(category) scrollRowToVisible:row];
}

void OutletWindow::deselectAll(RuleCategory category) {
    [table(category) deselectAll:nil];
}

bool OutletWindow::removeButtonIsEnabled(RuleCategory category) const {
    return [[controller_ removeButtonOf:category] isEnabled];
}

void OutletWindow::setRemoveButtonEnabled(RuleCategory category, bool enabled) {
    [[controller_ removeButtonOf:category] setEnabled:enabled];
}

RowRange OutletWindow::rowsInSight(RuleCategory category) const {
    NSTableView *seen = table(category);
    const NSRange rows = [seen rowsInRect:[seen visibleRect]];
    return {static_cast<long>(rows.location), static_cast<long>(rows.length)};
}

void OutletWindow::showFaults(RuleCategory category, std::string_view summary) {
    [controller_ remarkOnRowsInSightOf:category];
    NSTabView *tabView = [controller_ tabView];
    NSView *page = [[tabView tabViewItemAtIndex:static_cast<NSInteger>(pageOf(category))] view];
    for (NSView *view in [page subviews]) {
        if ([view isKindOfClass:[FaultLineView class]] &&
            [static_cast<FaultLineView *>(view) showText:toNSString(summary)]) {
            linkKeyViews(tabView);
        }
    }
}

void OutletWindow::showNotices(const std::vector<Notice> &notices) {
    NSTabView *tabView = [controller_ tabView];
    for (NSView *view in [[tabView superview] subviews]) {
        if ([view isKindOfClass:[NoticeBar class]] && [static_cast<NoticeBar *>(view) showNotices:notices]) {
            linkKeyViews(tabView);
        }
    }
}

void OutletWindow::setSwitchForced(std::string_view key, bool forced) {
    NSTabView *tabView = [controller_ tabView];
    for (const auto page : allPages) {
        showForced([[tabView tabViewItemAtIndex:static_cast<NSInteger>(page)] view], toNSString(key), forced);
    }
}

void OutletWindow::showVersion(std::string_view text) {
    [[controller_ Version] setStringValue:toNSString(text)];
}

void OutletWindow::showPage(Page page) {
    NSTabView *tabView = [controller_ tabView];
    if (!tabView) {
        return;
    }
    [controller_ takeFindBarAway];
    [tabView selectTabViewItem:[tabView tabViewItemAtIndex:static_cast<NSInteger>(page)]];
    [controller_ placeFindBar];
    for (const auto other : allPages) {
        [[controller_ buttonOf:other] setAccessibilitySelected:other == page];
    }
    NSWindow *window = [tabView window];
    NSView *firstOfLoop = linkKeyViews(tabView);
    const auto category = layoutOf(page).category;
    NSTableView *list = category ? table(*category) : nil;
    [window setInitialFirstResponder:list ? list : firstOfLoop];
    [window makeFirstResponder:list];
}

void OutletWindow::setPageButtonBackground(Page page, const Colour &colour) {
    setLayerBackground([controller_ buttonOf:page], colorOf(colour));
}

void OutletWindow::editSelectedRow(RuleCategory category, std::string_view column) {
    NSTableView *edited = table(category);
    if ([edited isKindOfClass:[RuleTableView class]]) {
        [static_cast<RuleTableView *>(edited) editSelectedRowInColumn:toNSString(column)];
    }
}

void OutletWindow::hideRestartButton() {
    [[controller_ restartFinderButton] setHidden:YES];
}

void OutletWindow::setHelpTitleColour(const Colour &colour) {
    NSButton *button = [controller_ helpButton];
    if (!button) {
        return;
    }
    NSMutableParagraphStyle *style = [[[NSMutableParagraphStyle alloc] init] autorelease];
    [style setAlignment:NSTextAlignmentCenter];
    // Large and bold: that red stands out from no ground enough for small print.
    constexpr CGFloat fontSize = 14;
    NSDictionary *attributes = [NSDictionary
        dictionaryWithObjectsAndKeys:colorOf(colour), NSForegroundColorAttributeName, style,
        NSParagraphStyleAttributeName, [NSFont boldSystemFontOfSize:fontSize], NSFontAttributeName, nil];
    [button setAttributedTitle:[[[NSAttributedString alloc] initWithString:[button title]
                                                                attributes:attributes] autorelease]];
}

void OutletWindow::setUpDragging(
    RuleCategory category, DragOperations outside, DragOperations inside, std::string_view draggedType) {
    [table(category) setDraggingSourceOperationMask:outside forLocal:NO];
    [table(category) setDraggingSourceOperationMask:inside forLocal:YES];
    [table(category) registerForDraggedTypes:[NSArray arrayWithObject:toNSString(draggedType)]];
}

void OutletWindow::observeSwitches(std::span<const std::string_view> keys) {
    for (const auto &key : keys) {
        [[NSUserDefaults standardUserDefaults] addObserver:controller_
                                                forKeyPath:toNSString(key)
                                                   options:NSKeyValueObservingOptionNew
                                                   context:nullptr];
    }
}

void OutletWindow::observeApplicationChanges() {
    NSNotificationCenter *center = [[NSWorkspace sharedWorkspace] notificationCenter];
    for (NSString *name :
        {NSWorkspaceDidActivateApplicationNotification, NSWorkspaceDidDeactivateApplicationNotification}) {
        [center addObserver:controller_ selector:@selector(appChanged:) name:name object:nil];
    }
}

} // namespace tarnwick
