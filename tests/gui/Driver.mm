#include "tests/gui/Driver.h"

#import "platform/appkit/MainInterface.h"
#import "platform/appkit/SettingsOutlets.h"
#import "platform/appkit/SettingsViewController.h"
#import "platform/appkit/StringConversion.h"

#include "platform/SystemServices.h"
#include "ui/WindowLayout.h"

#include <cmath>
#include <cstdlib>
#include <memory>

namespace {

constexpr double patienceSeconds = 10;
constexpr double pumpSeconds = 0.005;

std::function<int()> testsToRun;
const tarnwick::MainInterface *application = nullptr;
std::string alertText;

SettingsOutlets *outlets() {
    return [application->controller() outlets];
}

NSWindow *window() {
    return application->window();
}

NSTableView *tableOf(tarnwick::RuleCategory category) {
    return [outlets() tableOf:category];
}

void pumpOnce() {
    @autoreleasepool {
        NSEvent *event = [NSApp nextEventMatchingMask:NSEventMaskAny
                                            untilDate:[NSDate dateWithTimeIntervalSinceNow:pumpSeconds]
                                               inMode:NSDefaultRunLoopMode
                                              dequeue:YES];
        if (event) {
            [NSApp sendEvent:event];
        }
        [NSApp updateWindows];
    }
}

void postMouse(NSEventType type, NSPoint place, NSInteger clicks) {
    [NSApp postEvent:[NSEvent mouseEventWithType:type
                                        location:place
                                   modifierFlags:0
                                       timestamp:static_cast<NSTimeInterval>(
                                                     [[NSProcessInfo processInfo] systemUptime])
                                    windowNumber:[window() windowNumber]
                                         context:nil
                                     eventNumber:0
                                      clickCount:clicks
                                        pressure:1]
             atStart:NO];
}

void clickAt(NSPoint place, int clicks = 1) {
    for (int click = 1; click <= clicks; ++click) {
        postMouse(NSEventTypeLeftMouseDown, place, click);
        postMouse(NSEventTypeLeftMouseUp, place, click);
    }
    tarnwick::gui::settle();
}

NSPoint middleOf(NSView *view) {
    const NSRect bounds = [view bounds];
    return [view convertPoint:NSMakePoint(NSMidX(bounds), NSMidY(bounds)) toView:nil];
}

NSPoint pointInTable(NSTableView *table, NSPoint place) {
    return [table convertPoint:place toView:nil];
}

void postKey(NSString *characters, NSUInteger modifiers) {
    for (const auto type : {NSEventTypeKeyDown, NSEventTypeKeyUp}) {
        [NSApp postEvent:[NSEvent keyEventWithType:type
                                                location:NSZeroPoint
                                           modifierFlags:modifiers
                                               timestamp:static_cast<NSTimeInterval>(
                                                             [[NSProcessInfo processInfo] systemUptime])
                                            windowNumber:[window() windowNumber]
                                                 context:nil
                                              characters:characters
                             charactersIgnoringModifiers:characters
                                               isARepeat:NO
                                                 keyCode:0]
                 atStart:NO];
    }
    tarnwick::gui::settle();
}

NSString *charactersOf(tarnwick::gui::Key key) {
    using tarnwick::gui::Key;
    unichar character = 0;
    switch (key) {
    case Key::returnKey:
        character = NSCarriageReturnCharacter;
        break;
    case Key::tab:
        character = NSTabCharacter;
        break;
    case Key::escape:
        character = 0x1B;
        break;
    case Key::space:
        character = ' ';
        break;
    case Key::deleteKey:
        character = NSDeleteCharacter;
        break;
    case Key::up:
        character = NSUpArrowFunctionKey;
        break;
    case Key::down:
        character = NSDownArrowFunctionKey;
        break;
    }
    return [NSString stringWithCharacters:&character length:1];
}

/// The control inside a cell, or the cell itself when it is one.
NSControl *controlIn(tarnwick::RuleCategory category, long row, const std::string &column) {
    NSTableView *table = tableOf(category);
    [table scrollRowToVisible:row];
    const NSInteger index = [table columnWithIdentifier:tarnwick::toNSString(column)];
    NSView *cell = [table viewAtColumn:index row:row makeIfNecessary:YES];
    if ([cell isKindOfClass:[NSControl class]]) {
        return static_cast<NSControl *>(cell);
    }
    return [[cell subviews] count] > 0 ? [[cell subviews] objectAtIndex:0] : nil;
}

/// Below `view`, the button with this title that is on screen.
NSButton *visibleButton(NSView *view, NSString *title) {
    if ([view isHidden]) {
        return nil;
    }
    if ([view isKindOfClass:[NSButton class]] &&
        [[static_cast<NSButton *>(view) title] isEqualToString:title]) {
        return static_cast<NSButton *>(view);
    }
    for (NSView *inner in [view subviews]) {
        if (NSButton *found = visibleButton(inner, title)) {
            return found;
        }
    }
    return nil;
}

NSButton *visibleButton(const std::string &title) {
    return visibleButton([window() contentView], tarnwick::toNSString(title));
}

bool showsText(NSView *view, NSString *text) {
    if ([view isHidden]) {
        return false;
    }
    if ([view isKindOfClass:[NSTextField class]] &&
        [[static_cast<NSTextField *>(view) stringValue] isEqualToString:text]) {
        return true;
    }
    for (NSView *inner in [view subviews]) {
        if (showsText(inner, text)) {
            return true;
        }
    }
    return false;
}

/// Presses down on a row, moves in small steps to the place, lets go.
void drag(NSTableView *table, long row, NSPoint place) {
    const NSPoint start = pointInTable(table, NSMakePoint(120, NSMidY([table rectOfRow:row])));
    const NSPoint end = pointInTable(table, place);
    constexpr int steps = 12;
    postMouse(NSEventTypeLeftMouseDown, start, 1);
    for (int step = 1; step <= steps; ++step) {
        const double part = static_cast<double>(step) / steps;
        postMouse(NSEventTypeLeftMouseDragged,
            NSMakePoint(start.x + (end.x - start.x) * part, start.y + (end.y - start.y) * part), 1);
    }
    postMouse(NSEventTypeLeftMouseUp, end, 1);
    tarnwick::gui::settle();
}

NSTextField *firstLabel(NSView *view) {
    for (NSView *inner in [view subviews]) {
        if ([inner isKindOfClass:[NSTextField class]] &&
            [[static_cast<NSTextField *>(inner) stringValue] length] > 0) {
            return static_cast<NSTextField *>(inner);
        }
        if (NSTextField *found = firstLabel(inner)) {
            return found;
        }
    }
    return nil;
}

} // namespace

/// Runs the tests once the application runs, and presses buttons in panels while they block everything else.
@interface GuiTestRunner : NSObject
- (void)runTests:(id)sender;
- (void)pressButton:(NSString *)title;
@end

@implementation GuiTestRunner

- (void)runTests:(id)sender {
    if (![[NSUserDefaults standardUserDefaults] boolForKey:@"ShownEnableExtensionAlert"]) {
        // The prompt of a first launch is still on the stack below.
        [self performSelector:@selector(runTests:) withObject:nil afterDelay:0.05];
        return;
    }
    tarnwick::gui::waitUntil([] { return [window() isKeyWindow] && [NSApp isActive]; });
    const int status = testsToRun();
    [[NSUserDefaults standardUserDefaults] synchronize];
    std::exit(status);
}

- (void)pressButton:(NSString *)title {
    NSButton *button = visibleButton([[NSApp modalWindow] contentView], title);
    if (button) {
        alertText = tarnwick::toString([firstLabel([[NSApp modalWindow] contentView]) stringValue]);
        [button performClick:self];
        return;
    }
    [self performSelector:@selector(pressButton:)
               withObject:title
               afterDelay:0.02
                  inModes:[NSArray arrayWithObject:NSModalPanelRunLoopMode]];
}

@end

namespace tarnwick::gui {

int runInApplication(int argc, char *argv[], std::function<int()> tests) {
    @autoreleasepool {
        testsToRun = std::move(tests);
        prepareProcess(argc, argv);
        [NSApplication sharedApplication];
        const MainInterface interface;
        application = &interface;
        GuiTestRunner *runner = [[[GuiTestRunner alloc] init] autorelease];
        if (std::getenv("TARNWICK_FIRST_LAUNCH")) {
            pressInNextPanel("Open System Preferences");
        }
        [runner performSelector:@selector(runTests:) withObject:nil afterDelay:0.1];
        [NSApp run];
    }
    return EXIT_FAILURE;
}

bool waitUntil(const std::function<bool()> &condition) {
    NSDate *end = [NSDate dateWithTimeIntervalSinceNow:patienceSeconds];
    while (!condition()) {
        if ([end timeIntervalSinceNow] < 0) {
            return false;
        }
        pumpOnce();
    }
    return true;
}

void settle() {
    // Events, then what they deferred: two idle rounds end it.
    int idleRounds = 0;
    while (idleRounds < 3) {
        NSEvent *waiting = [NSApp nextEventMatchingMask:NSEventMaskAny
                                              untilDate:nil
                                                 inMode:NSDefaultRunLoopMode
                                                dequeue:NO];
        idleRounds = waiting ? 0 : idleRounds + 1;
        pumpOnce();
    }
}

void clickPageButton(Page page) {
    NSButton *buttons[] = {[outlets() createNewFileButton],
        [outlets() copyFilesToButton],
        [outlets() commonPathToButton],
        [outlets() customIconButton],
        [outlets() otherOptionButton],
        [outlets() moreAppButton]};
    clickAt(middleOf(buttons[static_cast<std::size_t>(page)]));
}

void clickCell(RuleCategory table, long row, const std::string &column, int clicks) {
    NSTableView *view = tableOf(table);
    [view scrollRowToVisible:row];
    const NSInteger index = [view columnWithIdentifier:toNSString(column)];
    const NSRect frame = [view frameOfCellAtColumn:index row:row];
    clickAt(pointInTable(view, NSMakePoint(NSMinX(frame) + 30, NSMidY(frame))), clicks);
}

void clickEmptySpace(RuleCategory table) {
    NSTableView *view = tableOf(table);
    const NSRect visible = [view visibleRect];
    clickAt(pointInTable(view, NSMakePoint(NSMidX(visible), NSMaxY(visible) - 5)));
}

void clickCheckBox(RuleCategory table, long row, const std::string &column) {
    clickAt(middleOf(controlIn(table, row, column)));
}

void clickButton(const std::string &title) {
    if (NSButton *button = visibleButton(title)) {
        const bool isCheckBox = [button imagePosition] == NSImageLeft;
        const NSPoint left = [button convertPoint:NSMakePoint(9, NSMidY([button bounds])) toView:nil];
        clickAt(isCheckBox ? left : middleOf(button));
    }
}

void dragRowIntoGap(RuleCategory table, long row, long gap) {
    NSTableView *view = tableOf(table);
    const double height = [view rowHeight];
    drag(view, row, NSMakePoint(120, static_cast<double>(gap) * height + (gap == 0 ? 2 : 0)));
}

void dragRowOntoRow(RuleCategory table, long row, long target) {
    NSTableView *view = tableOf(table);
    drag(view, row, NSMakePoint(120, NSMidY([view rectOfRow:target])));
}

void press(Key key) {
    postKey(charactersOf(key), 0);
}

void pressCommand(char key) {
    postKey([NSString stringWithFormat:@"%c", key], NSEventModifierFlagCommand);
}

void pressOptionCommand(Key key) {
    postKey(charactersOf(key), NSEventModifierFlagOption | NSEventModifierFlagCommand);
}

void type(const std::string &text) {
    NSString *characters = toNSString(text);
    for (NSUInteger index = 0; index < [characters length]; ++index) {
        postKey([characters substringWithRange:NSMakeRange(index, 1)], 0);
    }
}

int shownPage() {
    NSTabView *tabView = [outlets() tabView];
    return static_cast<int>([tabView indexOfTabViewItem:[tabView selectedTabViewItem]]);
}

long rowCount(RuleCategory table) {
    return [tableOf(table) numberOfRows];
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

void scrollToRow(RuleCategory table, long row) {
    [tableOf(table) scrollRowToVisible:row];
    settle();
}

bool removeButtonIsEnabled(RuleCategory table) {
    return [[outlets() removeButtonOf:table] isEnabled];
}

bool buttonIsEnabled(const std::string &title) {
    return [visibleButton(title) isEnabled];
}

bool buttonIsOn(const std::string &title) {
    return [visibleButton(title) state] == NSControlStateValueOn;
}

bool showsText(const std::string &text) {
    NSView *page = [[[outlets() tabView] selectedTabViewItem] view];
    return ::showsText(page, toNSString(text));
}

bool isEditing() {
    return [[window() firstResponder] isKindOfClass:[NSText class]];
}

void takePicture(const std::string &name) {
    if (const char *folder = std::getenv("TARNWICK_PICTURES")) {
        [window() display];
        [window() flushWindow];
        if (std::system(("import -window root '" + std::string(folder) + "/" + name + ".png'").c_str()) !=
            0) {
            NSLog(@"No picture of %s", name.c_str());
        }
    }
}

std::string lastAlertText() {
    return alertText;
}

void sendAction(const std::string &selector) {
    [NSApp sendAction:NSSelectorFromString(toNSString(selector)) to:application->controller() from:nil];
    settle();
}

void pressInNextPanel(const std::string &buttonTitle) {
    GuiTestRunner *runner = [[[GuiTestRunner alloc] init] autorelease];
    [runner performSelector:@selector(pressButton:)
                 withObject:toNSString(buttonTitle)
                 afterDelay:0.02
                    inModes:[NSArray arrayWithObject:NSModalPanelRunLoopMode]];
}

void chooseInNextPanel(const std::vector<std::string> &texts) {
    NSMutableArray *arguments = [NSMutableArray array];
    for (const auto &text : texts) {
        [arguments addObject:toNSString(text)];
    }
    [NSTask launchedTaskWithLaunchPath:@TARNWICK_GUI_TESTS "/choose-in-panel" arguments:arguments];
}

} // namespace tarnwick::gui
