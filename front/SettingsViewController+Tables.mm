#import "front/SettingsViewController+Actions.h"

#import "adapters/foundation/StringConversion.h"
#import "front/CellFactory.h"
#import "front/RuleTableView.h"
#import "front/Selectors.h"

using tarnwick::RuleCategory;

namespace {

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

/// A table that is none of ours stands for the Others list.
- (RuleCategory)listOf:(NSTableView *)table {
    return [self categoryOf:table].value_or(RuleCategory::others);
}

- (NSInteger)numberOfRowsInTableView:(NSTableView *)tableView {
    return _controller->rows().count([self listOf:tableView]);
}

- (CGFloat)tableView:(NSTableView *)tableView heightOfRow:(NSInteger)row {
    return tarnwick::rowHeight;
}

- (NSView *)tableView:(NSTableView *)tableView viewForTableColumn:(NSTableColumn *)column row:(NSInteger)row {
    return [self viewForCategory:[self listOf:tableView] column:column row:row];
}

- (NSView *)tableViewForCreateNewFile:(NSTableColumn *)column row:(NSInteger)row {
    return [self viewForCategory:RuleCategory::createNewFile column:column row:row];
}

- (NSView *)tableViewForCopyTo:(NSTableColumn *)column row:(NSInteger)row {
    return [self viewForCategory:RuleCategory::copyFilesTo column:column row:row];
}

- (NSView *)tableViewForCommonPath:(NSTableColumn *)column row:(NSInteger)row {
    return [self viewForCategory:RuleCategory::commonPath column:column row:row];
}

- (NSView *)tableViewForCustomIcon:(NSTableColumn *)column row:(NSInteger)row {
    return [self viewForCategory:RuleCategory::customIcon column:column row:row];
}

- (NSView *)tableViewForOthers:(NSTableColumn *)column row:(NSInteger)row {
    return [self viewForCategory:RuleCategory::others column:column row:row];
}

/// The views of all tables are made alike.
- (NSView *)viewForCategory:(RuleCategory)category column:(NSTableColumn *)column row:(NSInteger)row {
    const auto identifier = tarnwick::toString([column identifier]);
    const auto &rows = _controller->rows();
    NSView *cell = tarnwick::makeCell(rows.cell(category, identifier, row), category,
        tarnwick::toNSString(rows.label(category, identifier, row)), self);
    tarnwick::remarkOn(cell, _controller->warnings().remarks().of(category, identifier, row));
    return cell;
}

- (void)remarkOnRowsInSightOf:(RuleCategory)category {
    NSTableView *table = [self tableOf:category];
    const NSRange rows = [table rowsInRect:[table visibleRect]];
    for (NSTableColumn *column in [table tableColumns]) {
        const auto identifier = tarnwick::toString([column identifier]);
        const NSInteger index = [table columnWithIdentifier:[column identifier]];
        for (NSUInteger row = rows.location; row < NSMaxRange(rows); ++row) {
            const auto place = static_cast<NSInteger>(row);
            if (NSView *cell = [table viewAtColumn:index row:place makeIfNecessary:NO]) {
                tarnwick::remarkOn(cell, _controller->warnings().remarks().of(category, identifier, place));
            }
        }
    }
}

- (tarnwick::EnableAllState)enableAllStateOf:(RuleCategory)category stored:(BOOL)stored {
    return _controller->rows().enabled(category).state(stored);
}

- (NSString *)enabledTextOf:(RuleCategory)category {
    return tarnwick::toNSString(_controller->rows().enabledText(category));
}

/// Also after a selection by keyboard, for which a table sends no action.
- (void)tableViewSelectionDidChange:(NSNotification *)notification {
    if (const auto category = [self categoryOf:[notification object]]) {
        [NSApp sendAction:tarnwick::actionsOf(*category).click to:self from:[notification object]];
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
    return static_cast<NSDragOperation>(tarnwick::validateDrop(place));
}

- (BOOL)tableView:(NSTableView *)tableView
       acceptDrop:(id<NSDraggingInfo>)info
              row:(NSInteger)row
    dropOperation:(NSTableViewDropOperation)operation {
    _controller->acceptDrop([self categoryOf:tableView], [self categoryOf:[info draggingSource]],
        firstDraggedRow([info draggingPasteboard]), row);
    return YES;
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

/// Editing ends, whatever the text.
- (BOOL)control:(NSControl *)control textShouldEndEditing:(NSText *)fieldEditor {
    _controller->textEdited(
        tarnwick::toString([control identifier]), [control tag], tarnwick::toString([control stringValue]));
    return YES;
}

@end
