#include "TableModel.h"

#include <algorithm>

namespace {

NSString *text(const std::string &string) {
    return [NSString stringWithUTF8String:string.c_str()];
}

} // namespace

@implementation TNTableModel

- (void)note:(NSString *)event {
    events.push_back([event UTF8String]);
}

- (int)dropMarks {
    int marks = 0;
    for (NSView *view in [table subviews]) {
        marks += [NSStringFromClass([view class]) hasPrefix:@"TNDrop"] ? 1 : 0;
    }
    return marks;
}

#pragma mark Rows

- (NSInteger)numberOfRowsInTableView:(NSTableView *)tableView {
    return static_cast<NSInteger>(names.size());
}

- (CGFloat)tableView:(NSTableView *)tableView heightOfRow:(NSInteger)row {
    // An answer for a row that is not there would be an error.
    return names.at(static_cast<std::size_t>(row)).empty() ? 0 : 30;
}

- (NSView *)tableView:(NSTableView *)tableView viewForTableColumn:(NSTableColumn *)column row:(NSInteger)row {
    ++viewsMade;
    NSView *cell = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 100, 30)] autorelease];
    if ([[column identifier] isEqualToString:@"check"]) {
        NSButton *box = [[[NSButton alloc] initWithFrame:NSMakeRect(4, 6, 18, 18)] autorelease];
        [box setButtonType:NSButtonTypeSwitch];
        [box setTitle:@""];
        [box setTag:row];
        [box setTarget:self];
        [box setAction:@selector(checked:)];
        [cell addSubview:box];
        return cell;
    }
    const bool isName = [[column identifier] isEqualToString:@"name"];
    NSTextField *field = [[[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 100, 23)] autorelease];
    [field setStringValue:text(isName ? names.at(static_cast<std::size_t>(row)) : "path")];
    [field setEditable:isName];
    [field setBezeled:NO];
    [field setDrawsBackground:NO];
    [field setTag:row];
    [field setDelegate:(id)self];
    [field setAutoresizingMask:NSViewWidthSizable];
    [cell addSubview:field];
    return cell;
}

- (void)tableViewSelectionDidChange:(NSNotification *)notification {
    [self note:[NSString stringWithFormat:@"selection %ld", static_cast<long>([table selectedRow])]];
}

#pragma mark Actions

- (void)clicked:(NSTableView *)sender {
    [self note:[NSString stringWithFormat:@"action %ld", static_cast<long>([sender clickedRow])]];
}

- (void)doubleClicked:(NSTableView *)sender {
    [self note:[NSString stringWithFormat:@"double %ld", static_cast<long>([sender clickedRow])]];
}

- (void)checked:(NSButton *)sender {
    [self note:[NSString stringWithFormat:@"check %ld", static_cast<long>([sender tag])]];
}

- (BOOL)control:(NSControl *)control textShouldEndEditing:(NSText *)fieldEditor {
    [self note:[NSString
                   stringWithFormat:@"end %ld %@", static_cast<long>([control tag]), [control stringValue]]];
    if (refusesEndOfEditing) {
        return NO;
    }
    names.at(static_cast<std::size_t>([control tag])) = [[control stringValue] UTF8String];
    [table reloadData];
    return YES;
}

#pragma mark Dragging

- (BOOL)tableView:(NSTableView *)tableView
    writeRowsWithIndexes:(NSIndexSet *)rows
            toPasteboard:(NSPasteboard *)pasteboard {
    [pasteboard declareTypes:[NSArray arrayWithObject:NSStringPboardType] owner:self];
    return [pasteboard setData:[NSKeyedArchiver archivedDataWithRootObject:rows] forType:NSStringPboardType];
}

- (NSDragOperation)tableView:(NSTableView *)tableView
                validateDrop:(id<NSDraggingInfo>)info
                 proposedRow:(NSInteger)row
       proposedDropOperation:(NSTableViewDropOperation)operation {
    marksSeen = std::max(marksSeen, [self dropMarks]);
    if (operation == NSTableViewDropOn && retargetsDrops) {
        [tableView setDropRow:row dropOperation:NSTableViewDropAbove];
        return NSDragOperationMove;
    }
    return operation == NSTableViewDropAbove ? NSDragOperationMove : NSDragOperationNone;
}

- (BOOL)tableView:(NSTableView *)tableView
       acceptDrop:(id<NSDraggingInfo>)info
              row:(NSInteger)row
    dropOperation:(NSTableViewDropOperation)operation {
    NSIndexSet *rows = [NSKeyedUnarchiver
        unarchiveObjectWithData:[[info draggingPasteboard] dataForType:NSStringPboardType]];
    const auto from = static_cast<std::ptrdiff_t>([rows firstIndex]);
    [self note:[NSString stringWithFormat:@"drop %ld %@ %ld", static_cast<long>(from),
                         operation == NSTableViewDropAbove ? @"above" : @"on", static_cast<long>(row)]];
    const auto first = names.begin();
    if (row > from) {
        std::rotate(first + from, first + from + 1, first + row);
    } else {
        std::rotate(first + row, first + from, first + from + 1);
    }
    [tableView reloadData];
    return YES;
}

@end
