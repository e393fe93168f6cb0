#import "front/PageViewBuilder.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ChooseFolderButton.h"
#import "front/ControlMaking.h"
#import "front/EnableAllSwitch.h"
#import "front/FaultLineView.h"
#import "front/LayoutDirection.h"
#import "front/PageDropView.h"
#import "front/PageFrame.h"
#import "front/PreferenceSwitch.h"
#import "front/RuleMenu.h"
#import "front/RuleTableView.h"
#import "front/Selectors.h"
#import "front/SettingsViewController+Actions.h"

#include "ui/CellView.h"
#include "ui/RuleColumns.h"
#include "ui/WindowLayout.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

constexpr CGFloat margin = PageFrame::margin;
constexpr CGFloat switchHeight = 22;
constexpr CGFloat switchRowPitch = 26;
/// From one switch to that beside it, unless its title needs more.
constexpr CGFloat switchColumnPitch = 331;
constexpr CGFloat gap = 12;
constexpr CGFloat buttonBarHeight = 28;

/// As wide as its title needs: what is right of the title is not to be clicked.
void fitSwitch(PreferenceSwitch *box) {
    [box sizeToFit];
    [box setFrameSize:NSMakeSize(NSWidth([box frame]), switchHeight)];
}

/// The box at the left of a view that takes the place it is given.
NSView *makeSwitchPlace(PreferenceSwitch *box) {
    fitSwitch(box);
    NSView *place = [[[NSView alloc] initWithFrame:[box frame]] autorelease];
    [box setAutoresizingMask:NSViewMaxXMargin];
    [place addSubview:box];
    return place;
}

PreferenceSwitch *makeSwitch(const SwitchLayout &facts) {
    PreferenceSwitch *box = [[[PreferenceSwitch alloc] initWithTitle:localizedText(facts.title)
                                                                 key:toNSString(facts.key)] autorelease];
    [box setToolTip:localizedText(facts.toolTip)];
    fitSwitch(box);
    return box;
}

/// Two to a row, the second ones in line, and near the first however wide the window is.
void addSwitches(PageFrame &column, const PageLayout &layout) {
    NSMutableArray *boxes = [NSMutableArray array];
    CGFloat second = switchColumnPitch;
    for (const auto &facts : layout.switches) {
        PreferenceSwitch *box = makeSwitch(facts);
        if ([boxes count] % 2 == 0) {
            second = std::max(second, std::ceil(NSWidth([box frame])) + gap);
        }
        [boxes addObject:box];
    }
    CGFloat left = 0;
    for (PreferenceSwitch *box in boxes) {
        if (left == 0) {
            column.skip(switchRowPitch);
        }
        const CGFloat width = NSWidth([box frame]);
        column.need(left + width);
        column.place(box, NSMakeRect(margin + left, column.top(), width, switchHeight),
            NSViewMaxXMargin | NSViewMinYMargin);
        left = left == 0 ? second : 0;
    }
    column.skip(gap);
}

/// Nil for a list that has none.
EnableAllSwitch *addEnableAllSwitch(PageFrame &column, const PageLayout &layout, const RuleActions &actions,
    SettingsViewController *controller) {
    if (!actions.enableAll) {
        return nil;
    }
    EnableAllSwitch *box = [[[EnableAllSwitch alloc] initWithTitle:localizedText(layout.enableAllTitle)
                                                          category:*layout.category
                                                        controller:controller] autorelease];
    [box setFollowUpTarget:controller action:actions.enableAll];
    column.skip(switchHeight);
    NSView *place = makeSwitchPlace(box);
    column.place(place, NSMakeRect(margin, column.top(), column.width(), switchHeight),
        NSViewWidthSizable | NSViewMinYMargin);
    const CGFloat left = NSMaxX([box frame]) + gap;
    // Its text stands at the top of its frame.
    [[box countLabel] setFrame:NSMakeRect(left, 0, column.width() - left, switchHeight - 4)];
    [[box countLabel] setAutoresizingMask:NSViewWidthSizable];
    [place addSubview:[box countLabel]];
    column.skip(6);
    return box;
}

NSTableColumn *makeColumn(const Column &facts) {
    NSTableColumn *column =
        [[[NSTableColumn alloc] initWithIdentifier:toNSString(facts.identifier)] autorelease];
    [[column headerCell] setStringValue:facts.title.empty() ? @"" : localizedText(facts.title)];
    [[column headerCell] setAlignment:facts.centredTitle ? NSTextAlignmentCenter : leadingAlignment()];
    [column setWidth:facts.width];
    [column setEditable:NO];
    if (facts.flexible) {
        [column setMinWidth:120];
        [column setResizingMask:NSTableColumnAutoresizingMask | NSTableColumnUserResizingMask];
    } else {
        [column setMinWidth:facts.width];
        [column setMaxWidth:facts.width];
        [column setResizingMask:NSTableColumnNoResizing];
    }
    return column;
}

/// Empty where there is no such column.
NSString *identifierOf(RuleCategory category, ColumnRole role) {
    const auto *column = columnOf(category, role);
    return column ? toNSString(column->identifier) : @"";
}

RuleTableView *makeTable(
    const PageLayout &layout, const RuleActions &actions, SettingsViewController *controller, NSRect frame) {
    RuleTableView *table = [[[RuleTableView alloc] initWithFrame:frame] autorelease];
    for (const auto &facts : columnsOf(*layout.category)) {
        if (facts.roomBefore > 0) {
            [table addTableColumn:makeColumn({.identifier = "Room", .width = facts.roomBefore})];
        }
        [table addTableColumn:makeColumn(facts)];
    }
    if (@available(macOS 11.0, *)) {
        // Others make room for themselves at the sides of the rows, beyond the width of the columns.
        [table setStyle:NSTableViewStylePlain];
    }
    [table setRowHeight:rowHeight];
    [table setIntercellSpacing:NSMakeSize(0, 0)];
    [table setAllowsMultipleSelection:NO];
    [table setAllowsEmptySelection:YES];
    [table setAllowsColumnReordering:NO];
    [table setGridStyleMask:NSTableViewGridNone];
    [table setColumnAutoresizingStyle:NSTableViewUniformColumnAutoresizingStyle];
    [table setNameColumn:identifierOf(*layout.category, ColumnRole::name)
            switchColumn:identifierOf(*layout.category, ColumnRole::enableSwitch)];
    [table setAccessibilityLabel:localizedText(layout.title)];
    [table setTarget:controller];
    [table setAction:actions.click];
    [table setDataSource:controller];
    [table setDelegate:controller];
    [table setMenu:[[[RuleMenu alloc] initWithController:controller
                                                   scope:RuleMenuScope::rowAndList] autorelease]];
    [table setEmptySpaceMenu:[[[RuleMenu alloc] initWithController:controller
                                                             scope:RuleMenuScope::list] autorelease]];
    return table;
}

/// A centred title and an explanation below it, for a table without rows.
NSView *makeEmptyHint(const PageLayout &layout, CGFloat width) {
    constexpr CGFloat titleHeight = 22;
    // Two lines, which the explanation takes in a narrow window.
    constexpr CGFloat hintHeight = 36;
    NSView *hint =
        [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, width, titleHeight + hintHeight)] autorelease];
    const auto addLine = [&](std::string_view text, NSFont *font, NSColor *color, CGFloat bottom,
                             CGFloat height) {
        NSTextField *line = makeLabel(localizedText(text), font, color, true);
        [line setAlignment:NSTextAlignmentCenter];
        [line setFrame:NSMakeRect(0, bottom, width, height)];
        [line setAutoresizingMask:NSViewWidthSizable];
        [hint addSubview:line];
    };
    addLine(layout.emptyTitle, [NSFont boldSystemFontOfSize:14], [NSColor controlTextColor], hintHeight,
        titleHeight);
    addLine(layout.emptyHint, [NSFont systemFontOfSize:12], secondaryTextColor(), 0, hintHeight);
    return hint;
}

NSScrollView *makeScrollView(NSTableView *table, NSRect frame) {
    NSScrollView *scroll = [[[NSScrollView alloc] initWithFrame:frame] autorelease];
    [scroll setBorderType:NSBezelBorder];
    [scroll setHasVerticalScroller:YES];
    [scroll setHasHorizontalScroller:NO];
    [scroll setAutohidesScrollers:YES];
    [scroll setDocumentView:table];
    return scroll;
}

ChooseFolderButton *makeChooseFolderButton(
    const RuleActions &actions, SettingsViewController *controller, NSTableView *table) {
    ChooseFolderButton *button = [[[ChooseFolderButton alloc] init] autorelease];
    preparePushButton(button, localizedText("Choose Folder\u2026"), controller, actions.choosePath);
    [button followTable:table];
    [table setDoubleAction:actions.doubleClick];
    return button;
}

/// Goes to the next rule that something is wrong with, and on to the page's extra button.
void addFaultLine(NSView *page, NSScrollView *list, SettingsViewController *controller, NSButton *extra) {
    NSButton *next = makePushButton(localizedText("Show Next"), controller, @selector(showNextFault:));
    [next setToolTip:localizedText("Selects the next rule with a problem.")];
    NSArray *buttons = extra ? [NSArray arrayWithObjects:extra, next, nil] : [NSArray arrayWithObject:next];
    [page addSubview:[[[FaultLineView alloc] initAtFootOf:list buttons:buttons] autorelease]];
}

/// Add, remove and the page's extra button from the left; reset at the right. Gives the remove button.
NSButton *addButtonBar(PageFrame &column, const PageLayout &layout, const RuleActions &actions,
    SettingsViewController *controller, NSButton *extra) {
    CGFloat left = margin;
    const auto placeLeft = [&](NSButton *button) {
        column.place(button, NSMakeRect(left, margin, NSWidth([button frame]), buttonBarHeight),
            NSViewMaxXMargin | NSViewMaxYMargin);
        left = NSMaxX([button frame]) + gap;
    };
    placeLeft(makePushButton(localizedText(layout.addTitle), controller, actions.add));
    NSButton *remove = makePushButton(localizedText("Remove"), controller, actions.remove);
    placeLeft(remove);
    if (extra) {
        placeLeft(extra);
    }
    if (actions.reset) {
        NSButton *reset = makePushButton(localizedText("Reset List"), controller, actions.reset);
        [reset setToolTip:localizedText("Restores the list that came with Tarnwick.")];
        const CGFloat width = NSWidth([reset frame]);
        column.place(reset, NSMakeRect(margin + column.width() - width, margin, width, buttonBarHeight),
            NSViewMinXMargin | NSViewMaxYMargin);
        left += width;
    }
    column.need(left - margin);
    return remove;
}

} // namespace

NSView *makeRulePage(
    const PageLayout &layout, NSSize size, SettingsViewController *controller, CGFloat &neededWidth) {
    const auto &actions = actionsOf(*layout.category);
    PageDropView *page = [[[PageDropView alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)
                                                     category:*layout.category
                                                   controller:controller] autorelease];
    [page setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    PageFrame column(page, size);
    column.addHeading(layout);
    addSwitches(column, layout);
    EnableAllSwitch *enableAll = addEnableAllSwitch(column, layout, actions, controller);

    const CGFloat bottom = margin + buttonBarHeight + gap;
    const NSRect frame = NSMakeRect(margin, bottom, column.width(), column.top() - bottom);
    RuleTableView *table =
        makeTable(layout, actions, controller, NSMakeRect(0, 0, NSWidth(frame), NSHeight(frame)));
    column.place(makeScrollView(table, frame), frame, NSViewWidthSizable | NSViewHeightSizable);
    [enableAll followTable:table];
    [page takeDropsFor:table];
    [table sizeToFit];
    [table setEmptyHint:makeEmptyHint(layout, NSWidth(frame) - 2 * margin)];

    NSButton *chooseFolder = actions.choosePath ? makeChooseFolderButton(actions, controller, table) : nil;
    // Common folders are chosen anew when they are lost; targets may also wait for their first.
    const bool isAlwaysThere = layout.category == RuleCategory::copyFilesTo;
    addFaultLine(page, [table enclosingScrollView], controller, isAlwaysThere ? nil : chooseFolder);
    NSButton *remove = addButtonBar(column, layout, actions, controller, isAlwaysThere ? chooseFolder : nil);
    [remove setEnabled:NO];
    [table setRemoveButton:remove];
    [controller setTable:table removeButton:remove ofCategory:*layout.category];
    neededWidth = std::max(neededWidth, column.neededWidth());
    return page;
}

} // namespace tarnwick
