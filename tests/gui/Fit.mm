#include "tests/gui/Fit.h"

#include "tests/gui/Driver.h"
#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "front/LayoutDirection.h"
#import "front/SettingsViewController.h"

#import <AppKit/AppKit.h>

#include <algorithm>

namespace {

using tarnwick::toString;
using tarnwick::gui::settingsController;
using tarnwick::gui::settingsWindow;

/// Measuring rounds otherwise than drawing does.
constexpr CGFloat tolerance = 1;
/// At least, in a button.
constexpr CGFloat roomBesideTitle = 4;

NSString *textOf(NSView *view) {
    if ([view isKindOfClass:[NSButton class]]) {
        return [static_cast<NSButton *>(view) title];
    }
    return [view isKindOfClass:[NSTextField class]] ? [static_cast<NSTextField *>(view) stringValue] : @"";
}

std::string nameOf(NSView *view) {
    NSString *text = [textOf(view) length] > 0 ? textOf(view) : [view accessibilityLabel];
    return toString([NSString stringWithFormat:@"%@ \"%@\"", NSStringFromClass([view class]), text]);
}

bool isCut(NSTextField *field) {
    NSAttributedString *text = [field attributedStringValue];
    const NSSize room = [field bounds].size;
    if ([[field cell] wraps]) {
        const NSRect needed = [text boundingRectWithSize:NSMakeSize(room.width, 1e6)
                                                 options:NSStringDrawingUsesLineFragmentOrigin];
        return NSHeight(needed) > room.height + tolerance;
    }
    // The middle of a path is left out on purpose.
    const bool isPath = [[field cell] lineBreakMode] == NSLineBreakByTruncatingMiddle;
    return !isPath && [text size].width > room.width + tolerance;
}

bool isCut(NSView *view) {
    if ([view isKindOfClass:[NSTextField class]]) {
        return isCut(static_cast<NSTextField *>(view));
    }
    if ([view isKindOfClass:[NSButton class]]) {
        NSButton *button = static_cast<NSButton *>(view);
        if ([button imagePosition] == NSImageOnly && [button image]) {
            return [[button image] size].width > NSWidth([view bounds]) + tolerance;
        }
        const CGFloat edges = [button isBordered] ? 2 * roomBesideTitle : 0;
        const CGFloat title = [[[button cell] attributedTitle] size].width;
        return [[button image] size].width + title + edges > NSWidth([view bounds]) + tolerance;
    }
    return false;
}

bool isInList(NSView *view) {
    return [view enclosingScrollView] != nil;
}

void collect(NSView *view, std::vector<NSView *> &controls, std::vector<NSTableView *> &tables) {
    if ([view isHidden]) {
        return;
    }
    if ([view isKindOfClass:[NSTableView class]]) {
        tables.push_back(static_cast<NSTableView *>(view));
    } else if ([view isKindOfClass:[NSControl class]] && ![view isKindOfClass:[NSScroller class]]) {
        controls.push_back(view);
    }
    for (NSView *inner in [view subviews]) {
        collect(inner, controls, tables);
    }
}

void lookAtTitles(NSTableView *table, std::vector<std::string> &faults) {
    for (NSTableColumn *column in [table tableColumns]) {
        NSCell *title = [column headerCell];
        NSFont *font = [NSFont systemFontOfSize:11];
        NSDictionary *attributes = [NSDictionary dictionaryWithObject:font forKey:NSFontAttributeName];
        if ([[title stringValue] sizeWithAttributes:attributes].width > [column width] + tolerance) {
            faults.push_back("the title of a column is cut: " + toString([title stringValue]));
        }
    }
}

NSRect placeOf(NSView *view) {
    return [view convertRect:[view visibleRect] toView:nil];
}

bool meet(NSView *first, NSView *second) {
    const NSRect both = NSIntersectionRect(placeOf(first), placeOf(second));
    return NSWidth(both) > tolerance && NSHeight(both) > tolerance && ![first isDescendantOf:second] &&
           ![second isDescendantOf:first];
}

NSButton *removeButton() {
    return [settingsController() removeButtonOf:tarnwick::RuleCategory::createNewFile];
}

NSRect placeOfHint;
NSRect placeOfButton;

} // namespace

namespace tarnwick::gui {

void makeWindowSmallest() {
    [settingsWindow() setContentSize:[settingsWindow() contentMinSize]];
    settle();
}

void makeWindowNarrow() {
    constexpr CGFloat allRows = 1000;
    [settingsWindow() setContentSize:NSMakeSize([settingsWindow() contentMinSize].width, allRows)];
    settle();
}

Fit fitOfWhatIsShown() {
    Fit fit;
    std::vector<NSView *> controls;
    std::vector<NSTableView *> tables;
    NSWindow *window = [NSApp modalWindow] ? [NSApp modalWindow] : settingsWindow();
    collect([window contentView], controls, tables);
    fit.controls = static_cast<std::size_t>(
        std::count_if(controls.begin(), controls.end(), [](NSView *view) { return !isInList(view); }));
    for (auto *table : tables) {
        lookAtTitles(table, fit.faults);
    }
    for (std::size_t index = 0; index < controls.size(); ++index) {
        NSView *view = controls[index];
        if (isCut(view)) {
            fit.faults.push_back("cut: " + nameOf(view));
        }
        const NSSize whole = [view bounds].size;
        const NSSize shown = [view visibleRect].size;
        if (!isInList(view) &&
            (shown.width < whole.width - tolerance || shown.height < whole.height - tolerance)) {
            fit.faults.push_back("beyond its place: " + nameOf(view));
        }
        for (std::size_t other = index + 1; other < controls.size(); ++other) {
            if (meet(view, controls[other])) {
                fit.faults.push_back(nameOf(view) + " meets " + nameOf(controls[other]));
            }
        }
    }
    return fit;
}

void spoilFit() {
    NSTextField *hint = [settingsController() tipOfkillFinder];
    placeOfHint = [hint frame];
    placeOfButton = [removeButton() frame];
    [hint setFrameSize:NSMakeSize(NSWidth(placeOfHint), 4)];
    // Over its neighbour.
    const CGFloat distance = isRightToLeft() ? 20 : -20;
    [removeButton() setFrameOrigin:NSMakePoint(NSMinX(placeOfButton) + distance, NSMinY(placeOfButton))];
}

void mendFit() {
    [[settingsController() tipOfkillFinder] setFrame:placeOfHint];
    [removeButton() setFrame:placeOfButton];
}

} // namespace tarnwick::gui
