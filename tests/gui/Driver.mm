#include "tests/gui/Driver.h"

#include "tests/gui/SettingsWindow.h"

#import "platform/appkit/MainInterface.h"
#import "platform/appkit/StringConversion.h"
#import "tests/driving/Driving.h"

#include "platform/SystemServices.h"

#include <cstdlib>

namespace {

std::function<int()> testsToRun;
std::string alertText;

NSTextField *firstLabel(NSView *view) {
    return static_cast<NSTextField *>(tarnwick::gui::firstView(view, [](NSView *each) {
        return [each isKindOfClass:[NSTextField class]] &&
               [[static_cast<NSTextField *>(each) stringValue] length] > 0;
    }));
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
    tarnwick::gui::waitUntil(
        [] { return [tarnwick::gui::settingsWindow() isKeyWindow] && [NSApp isActive]; });
    const int status = testsToRun();
    [[NSUserDefaults standardUserDefaults] synchronize];
    std::exit(status);
}

- (void)pressButton:(NSString *)title {
    NSView *panel = [[NSApp modalWindow] contentView];
    NSButton *button = tarnwick::gui::visibleButton(panel, title);
    if (button) {
        alertText = tarnwick::toString([firstLabel(panel) stringValue]);
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
        useInterface(interface);
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
    return driving::waitUntil(condition);
}

void settle() {
    driving::settle();
}

std::string lastAlertText() {
    return alertText;
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
