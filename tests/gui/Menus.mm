#include "tests/gui/Menus.h"

#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "front/SettingsViewController+Actions.h"
#import "gnustep/menus/KeyLabels.h"
#import "gnustep/menus/TNMenuView.h"
#import "gnustep/menus/TNMenuWindow.h"
#import "tests/driving/Driving.h"
#import "tests/gui/Pixels.h"

#include <algorithm>

/// Looks at the menu that is open, and goes on in it with the keyboard.
@interface GuiMenuVisitor : NSObject {
@public
    std::string chosen;
    std::vector<tarnwick::gui::MenuItemFacts> found;
    /// Of the first item that draws its own.
    NSImage *picture;
}
- (void)visit:(id)sender;
@end

namespace {

using namespace tarnwick;

TNMenuWindow *openMenu() {
    for (NSWindow *window in [NSApp windows]) {
        if ([window isKindOfClass:[TNMenuWindow class]] && [window isVisible]) {
            return static_cast<TNMenuWindow *>(window);
        }
    }
    return nil;
}

/// Whether anything is drawn in front of the title.
bool showsPicture(TNMenuWindow *window, NSInteger row) {
    auto *view = static_cast<TNMenuView *>(gui::firstView(
        [window contentView], [](NSView *each) { return [each isKindOfClass:[TNMenuView class]]; }));
    constexpr CGFloat size = TNMenuRows::imageSize;
    const NSRect place = [view placeOfRow:row];
    const NSRect picture = NSMakeRect(view->rows->imageLeading(), NSMidY(place) - size / 2, size, size);
    return view->rows->titleLeading() > NSMaxX(picture) &&
           gui::Pixels([view window]).coloursIn([view convertRect:picture toView:nil]).size() > 1;
}

bool isDrawnByItsItem(NSImage *image) {
    for (NSImageRep *drawing in [image representations]) {
        if ([drawing isKindOfClass:[NSCustomImageRep class]]) {
            return true;
        }
    }
    return false;
}

void postKey(unichar key) {
    driving::postKey(gui::settingsWindow(), [NSString stringWithCharacters:&key length:1]);
}

} // namespace

@implementation GuiMenuVisitor

- (void)dealloc {
    [picture release];
    [super dealloc];
}

- (void)visit:(id)sender {
    constexpr unichar escape = 0x1B;
    NSInteger downs = 0;
    bool isThere = false;
    NSInteger row = -1;
    for (NSMenuItem *item in [[openMenu() shownMenu] itemArray]) {
        ++row;
        if ([item isSeparatorItem]) {
            continue;
        }
        found.push_back({toString([item title]), toString(TNKeyLabel(item)),
            [item toolTip] ? toString([item toolTip]) : "", [item isEnabled] == YES,
            [item state] == NSControlStateValueOn, showsPicture(openMenu(), row)});
        if (!picture && isDrawnByItsItem([item image])) {
            picture = [[item image] retain];
        }
        downs += !isThere && [item isEnabled] ? 1 : 0;
        isThere = isThere || found.back().title == chosen;
    }
    for (NSInteger down = 0; isThere && down < downs; ++down) {
        postKey(NSDownArrowFunctionKey);
    }
    postKey(isThere ? NSCarriageReturnCharacter : escape);
}

@end

namespace tarnwick::gui {
namespace {

GuiMenuVisitor *sendVisitor(const std::string &chosen) {
    GuiMenuVisitor *visitor = [[[GuiMenuVisitor alloc] init] autorelease];
    @autoreleasepool {
        visitor->chosen = chosen;
        [visitor performSelector:@selector(visit:)
                      withObject:nil
                      afterDelay:0
                         inModes:[NSArray arrayWithObject:NSEventTrackingRunLoopMode]];
        driving::waitUntil([visitor] { return !visitor->found.empty(); });
        driving::settle();
    }
    return visitor;
}

std::vector<MenuItemFacts> visit(const std::string &chosen) {
    @autoreleasepool {
        return sendVisitor(chosen)->found;
    }
}

void clickPreview() {
    driving::postClicks(settingsWindow(), driving::middleOf([settingsController() previewButton]));
}

void press(NSPoint place, MenuPress press) {
    const bool isRight = press == MenuPress::rightButton;
    const NSUInteger modifiers = isRight ? 0U : NSControlKeyMask;
    driving::postMouse(settingsWindow(), isRight ? NSRightMouseDown : NSLeftMouseDown, place, 1, modifiers);
    driving::postMouse(settingsWindow(), isRight ? NSRightMouseUp : NSLeftMouseUp, place, 1, modifiers);
}

} // namespace

std::vector<MenuItemFacts> openMenuOfCell(
    RuleCategory table, long row, const std::string &column, const std::string &chosen, MenuPress pressed) {
    NSTableView *view = tableOf(table);
    [view scrollRowToVisible:row];
    const NSRect frame = [view frameOfCellAtColumn:[view columnWithIdentifier:toNSString(column)] row:row];
    press([view convertPoint:NSMakePoint(NSMinX(frame) + 30, NSMidY(frame)) toView:nil], pressed);
    return visit(chosen);
}

std::vector<MenuItemFacts> openMenuOfEmptySpace(RuleCategory table) {
    NSTableView *view = tableOf(table);
    const NSRect visible = [view visibleRect];
    press([view convertPoint:NSMakePoint(NSMidX(visible), NSMaxY(visible) - 5) toView:nil],
        MenuPress::rightButton);
    return visit("");
}

std::vector<MenuItemFacts> openMenuByKey(RuleCategory table, const std::string &chosen) {
    [settingsWindow() makeFirstResponder:tableOf(table)];
    postKey(NSMenuFunctionKey);
    return visit(chosen);
}

std::vector<MenuItemFacts> openPreview() {
    clickPreview();
    return visit("");
}

bool keptPictureAsksNobody() {
    @autoreleasepool {
        clickPreview();
        NSImage *picture = sendVisitor("")->picture;
        return picture && !isDrawnByItsItem(picture);
    }
}

std::vector<MenuItemFacts> openMenuOfBar(const std::string &title, const std::string &chosen) {
    NSMenuView *bar = static_cast<NSMenuView *>(firstView([[settingsWindow() contentView] superview],
        [](NSView *view) { return [view isKindOfClass:[NSMenuView class]]; }));
    const NSRect frame = [bar rectOfItemAtIndex:[[bar menu] indexOfItemWithTitle:toNSString(title)]];
    const NSPoint place = [bar convertPoint:NSMakePoint(NSMidX(frame), NSMidY(frame)) toView:nil];
    driving::postMouse([bar window], NSLeftMouseDown, place);
    driving::postMouse([bar window], NSLeftMouseUp, place);
    return visit(chosen);
}

MenuItemFacts itemTitled(const std::vector<MenuItemFacts> &items, const std::string &title) {
    const auto found = std::find_if(
        items.begin(), items.end(), [&title](const MenuItemFacts &item) { return item.title == title; });
    return found == items.end() ? MenuItemFacts() : *found;
}

std::vector<std::string> titlesOf(const std::vector<MenuItemFacts> &items) {
    std::vector<std::string> titles;
    for (const auto &item : items) {
        titles.push_back(item.title);
    }
    return titles;
}

bool isHelpMenu(const std::string &title) {
    return
        [NSApp helpMenu] && [NSApp helpMenu] == [[[NSApp mainMenu] itemWithTitle:toNSString(title)] submenu];
}

} // namespace tarnwick::gui
