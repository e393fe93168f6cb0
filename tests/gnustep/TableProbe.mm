#include "TableProbe.h"

#include "LettingGo.h"
#include "Probe.h"
#include "TableModel.h"

#import "tests/driving/Driving.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include <cmath>
#include <utility>

namespace tarnwick::probe {

namespace {

/// Left of every control in the name column's cells but inside its text field.
constexpr double grip = 70;

NSString *const identifiers[] = {@"check", @"name", @"path"};

/// The only control in a cell.
NSView *controlIn(NSView *cell) {
    return [[cell subviews] count] > 0 ? [[cell subviews] objectAtIndex:0] : nil;
}

} // namespace

struct TableWindow::Parts {
    NSWindow *window = nil;
    NSTableView *table = nil;
    NSTextField *outside = nil;
    TNTableModel *model = nil;

    void build(long rows);
    [[nodiscard]] NSPoint placeInWindow(NSPoint place) const { return [table convertPoint:place toView:nil]; }
    [[nodiscard]] NSPoint middleOfRow(long row) const {
        return placeInWindow(NSMakePoint(grip, NSMidY([table rectOfRow:row])));
    }
};

void TableWindow::Parts::build(long rows) {
    window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 400, 300)
                                         styleMask:NSWindowStyleMaskTitled
                                           backing:NSBackingStoreBuffered
                                             defer:NO];
    model = [[TNTableModel alloc] init];
    for (long row = 0; row < rows; ++row) {
        model->names.push_back("row" + std::to_string(row));
    }
    table = [[[NSTableView alloc] initWithFrame:NSMakeRect(0, 0, 380, 200)] autorelease];
    model->table = table;
    for (NSString *identifier : identifiers) {
        NSTableColumn *column = [[[NSTableColumn alloc] initWithIdentifier:identifier] autorelease];
        const bool isName = [identifier isEqualToString:@"name"];
        [column setWidth:isName ? 150 : 60];
        [column setResizingMask:isName ? NSTableColumnAutoresizingMask : NSTableColumnNoResizing];
        [table addTableColumn:column];
    }
    [table setIntercellSpacing:NSMakeSize(0, 0)];
    [table setAllowsMultipleSelection:NO];
    [table setAllowsEmptySelection:YES];
    [table setTarget:model];
    [table setAction:@selector(clicked:)];
    [table setDoubleAction:@selector(doubleClicked:)];
    [table setDataSource:(id)model];
    [table setDelegate:(id)model];
    [table registerForDraggedTypes:[NSArray arrayWithObject:NSStringPboardType]];
    [table setDraggingSourceOperationMask:NSDragOperationMove forLocal:YES];
    NSScrollView *scroll = [[[NSScrollView alloc] initWithFrame:NSMakeRect(10, 50, 380, 240)] autorelease];
    [scroll setHasVerticalScroller:YES];
    [scroll setDocumentView:table];
    outside = [[[NSTextField alloc] initWithFrame:NSMakeRect(10, 10, 200, 24)] autorelease];
    [[window contentView] addSubview:scroll];
    [[window contentView] addSubview:outside];
    [table reloadData];
}

TableWindow::TableWindow(long rows) : parts_(std::make_unique<Parts>()) {
    @autoreleasepool {
        startUp();
        [NSApp finishLaunching];
        parts_->build(rows);
        [parts_->window makeKeyAndOrderFront:nil];
        [NSApp activateIgnoringOtherApps:YES];
        driving::waitUntil([this] { return [parts_->window isKeyWindow] && [NSApp isActive]; });
        driving::settle();
    }
}

TableWindow::~TableWindow() {
    [parts_->table setDelegate:nil];
    [parts_->table setDataSource:nil];
    [parts_->window close];
    [parts_->model release];
}

void TableWindow::click(long row, Column column, int clicks) {
    const NSRect frame = [parts_->table frameOfCellAtColumn:column row:row];
    const double inset = column == check ? 13 : 30;
    driving::click(
        parts_->window, parts_->placeInWindow(NSMakePoint(NSMinX(frame) + inset, NSMidY(frame))), clicks);
}

void TableWindow::clickEmptySpace(int clicks) {
    const NSRect visible = [parts_->table visibleRect];
    driving::click(parts_->window, parts_->placeInWindow(NSMakePoint(grip, NSMaxY(visible) - 4)), clicks);
}

void TableWindow::clickFieldOutside() {
    driving::click(parts_->window, NSMakePoint(60, 20), 1);
}

void TableWindow::press(TableKey key) {
    const unichar characters[] = {
        NSCarriageReturnCharacter, NSTabCharacter, 0x1B, NSUpArrowFunctionKey, NSDownArrowFunctionKey};
    driving::press(parts_->window, [NSString stringWithCharacters:&characters[static_cast<int>(key)]
                                                           length:1]);
}

void TableWindow::type(const std::string &text) {
    driving::type(parts_->window, [NSString stringWithUTF8String:text.c_str()]);
}

void TableWindow::dragIntoGap(long row, long gap) {
    const double edge = static_cast<double>(gap) * [parts_->table rowHeight];
    driving::drag(parts_->window, parts_->middleOfRow(row),
        parts_->placeInWindow(NSMakePoint(grip, gap == 0 ? edge + 2 : edge - 2)));
}

void TableWindow::dragOnto(long row, long target) {
    driving::drag(parts_->window, parts_->middleOfRow(row), parts_->middleOfRow(target));
}

void TableWindow::dragAtLowerEdge(long row, double wantedScroll) {
    @autoreleasepool {
        const NSPoint start = parts_->middleOfRow(row);
        const NSRect visible = [parts_->table visibleRect];
        const NSPoint edge = parts_->placeInWindow(NSMakePoint(grip, NSMaxY(visible) - 4));
        TNLettingGo *end = [[[TNLettingGo alloc] init] autorelease];
        end->condition = [this, wantedScroll] { return scrolledBy() >= wantedScroll; };
        end->letGo = [this, edge] { driving::postMouse(parts_->window, NSLeftMouseUp, edge, 1); };
        // During a drag GNUstep asks where the pointer really is.
        [GSCurrentServer() setMouseLocation:[parts_->window convertBaseToScreen:edge] onScreen:0];
        [end wait];
        driving::postMouse(parts_->window, NSLeftMouseDown, start, 1);
        driving::postMouse(parts_->window, NSLeftMouseDragged, edge, 1);
        driving::settle();
    }
}

void TableWindow::scrollToRow(long row) {
    [parts_->table scrollRowToVisible:row];
    driving::settle();
}

void TableWindow::reload() {
    reloadUnseen();
    driving::settle();
}

void TableWindow::reloadUnseen() {
    [parts_->table reloadData];
}

void TableWindow::refuseEndOfEditing(bool refuse) {
    parts_->model->refusesEndOfEditing = refuse;
}

void TableWindow::retargetDropsOnRows() {
    parts_->model->retargetsDrops = YES;
}

std::vector<std::string> TableWindow::takeEvents() {
    return std::exchange(parts_->model->events, {});
}

long TableWindow::selectedRow() const {
    return [parts_->table selectedRow];
}

bool TableWindow::isEditing() const {
    id responder = [parts_->window firstResponder];
    return [responder isKindOfClass:[NSText class]] && [[responder delegate] isDescendantOf:parts_->table];
}

std::string TableWindow::editedText() const {
    return isEditing() ? [[(id)[parts_->window firstResponder] string] UTF8String] : "";
}

std::vector<std::string> TableWindow::names() const {
    return parts_->model->names;
}

long TableWindow::builtRows() const {
    long rows = 0;
    for (NSInteger row = 0; row < [parts_->table numberOfRows]; ++row) {
        rows += [parts_->table viewAtColumn:name row:row makeIfNecessary:NO] ? 1 : 0;
    }
    return rows;
}

long TableWindow::viewsMade() const {
    return parts_->model->viewsMade;
}

double TableWindow::rowHeight() const {
    return [parts_->table rowHeight];
}

int TableWindow::dropMarks() const {
    return [parts_->model dropMarks];
}

int TableWindow::dropMarksSeen() const {
    return parts_->model->marksSeen;
}

double TableWindow::scrolledBy() const {
    return NSMinY([parts_->table visibleRect]);
}

std::string TableWindow::placeOfControl(long row, Column column) const {
    NSView *control = controlIn([parts_->table viewAtColumn:column row:row makeIfNecessary:NO]);
    return std::to_string([parts_->table rowForView:control]) + " " +
           std::to_string([parts_->table columnForView:control]);
}

bool TableWindow::controlTakesClick(long row, Column column) const {
    const NSRect frame = [parts_->table frameOfCellAtColumn:column row:row];
    const NSPoint middle = NSMakePoint(NSMinX(frame) + 13, NSMidY(frame));
    NSView *hit = [parts_->table hitTest:[parts_->table convertPoint:middle
                                                              toView:[parts_->table superview]]];
    return hit != parts_->table && [parts_->table rowForView:hit] == row;
}

std::string TableWindow::widthsOfNameCell(long row) const {
    NSView *cell = [parts_->table viewAtColumn:name row:row makeIfNecessary:NO];
    return std::to_string(std::lround(NSWidth([cell frame]))) + " " +
           std::to_string(std::lround(NSWidth([controlIn(cell) frame])));
}

} // namespace tarnwick::probe
