#import "front/SettingsViewController.h"

#import "adapters/foundation/StringConversion.h"
#import "front/CellFactory.h"
#import "front/RulePageActions.h"
#import "front/RuleTableView.h"
#import "front/SettingsOutlets.h"

#include "ui/SettingsViewController.h"

#include <optional>

using tarnwick::RuleCategory;

namespace {

/// A table that is none of the five stands for the Others list.
RuleCategory categoryOf(NSTableView *table, SettingsOutlets *outlets) {
    auto category = RuleCategory::others;
    [outlets getCategory:&category ofTable:table];
    return category;
}

std::optional<RuleCategory> knownCategoryOf(id table, SettingsOutlets *outlets) {
    auto category = RuleCategory::others;
    return [outlets getCategory:&category ofTable:table] ? std::optional(category) : std::nullopt;
}

/// The first of the dragged rows; -1 when the pasteboard holds none.
long firstDraggedRow(NSPasteboard *pasteboard) {
    NSData *payload = [pasteboard dataForType:NSStringPboardType];
    id rows = nil;
    @try {
        rows = [payload length] > 0 ? [NSKeyedUnarchiver unarchiveObjectWithData:payload] : nil;
    } @catch (NSException *) {
        // Somebody else's text: not a drag of rows.
        rows = nil;
    }
    if (![rows isKindOfClass:[NSIndexSet class]] || [rows count] == 0) {
        return -1;
    }
    return static_cast<long>([rows firstIndex]);
}

} // namespace

@implementation SettingsViewController (Tables)

- (NSInteger)numberOfRowsInTableView:(NSTableView *)tableView {
    return [self controller]->numberOfRows(categoryOf(tableView, [self outlets]));
}

- (CGFloat)tableView:(NSTableView *)tableView heightOfRow:(NSInteger)row {
    return [self controller]->heightOfRow();
}

- (NSView *)tableView:(NSTableView *)tableView viewForTableColumn:(NSTableColumn *)column row:(NSInteger)row {
    const auto identifier = tarnwick::toString([column identifier]);
    const auto category = categoryOf(tableView, [self outlets]);
    return tarnwick::makeCell([self controller]->viewForTableColumn(category, identifier, row),
        tarnwick::toNSString([self controller]->accessibilityLabel(category, identifier, row)), self);
}

/// Also after a selection by keyboard, for which a table sends no action.
- (void)tableViewSelectionDidChange:(NSNotification *)notification {
    auto category = RuleCategory::others;
    if ([[self outlets] getCategory:&category ofTable:[notification object]]) {
        [NSApp sendAction:tarnwick::actionsOf(category).click to:self from:[notification object]];
    }
}

- (BOOL)tableView:(NSTableView *)tableView
    writeRowsWithIndexes:(NSIndexSet *)rows
            toPasteboard:(NSPasteboard *)pasteboard {
    [pasteboard declareTypes:[NSArray arrayWithObject:NSStringPboardType] owner:self];
    [pasteboard setData:[NSKeyedArchiver archivedDataWithRootObject:rows] forType:NSStringPboardType];
    return YES;
}

- (NSDragOperation)tableView:(NSTableView *)tableView
                validateDrop:(id<NSDraggingInfo>)info
                 proposedRow:(NSInteger)row
       proposedDropOperation:(NSTableViewDropOperation)operation {
    const auto place =
        operation == NSTableViewDropAbove ? tarnwick::DropPlace::above : tarnwick::DropPlace::on;
    return static_cast<NSDragOperation>([self controller]->validateDrop(place));
}

- (BOOL)tableView:(NSTableView *)tableView
       acceptDrop:(id<NSDraggingInfo>)info
              row:(NSInteger)row
    dropOperation:(NSTableViewDropOperation)operation {
    return [self controller]->acceptDrop(knownCategoryOf(tableView, [self outlets]),
        knownCategoryOf([info draggingSource], [self outlets]), firstDraggedRow([info draggingPasteboard]),
        row);
}

/// The Escape key.
- (BOOL)control:(NSControl *)control textView:(NSTextView *)textView doCommandBySelector:(SEL)command {
    NSView *view = control;
    while (view && ![view isKindOfClass:[RuleTableView class]]) {
        view = [view superview];
    }
    if (!view || !sel_isEqual(command, @selector(cancelOperation:))) {
        return NO;
    }
    [static_cast<RuleTableView *>(view) abandonEditOf:control];
    return YES;
}

- (BOOL)control:(NSControl *)control textShouldEndEditing:(NSText *)fieldEditor {
    return [self controller]->controlTextShouldEndEditing(
        tarnwick::toString([control identifier]), [control tag], tarnwick::toString([control stringValue]));
}

@end
