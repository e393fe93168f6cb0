#include "tests/gui/Driver.h"

#include "tests/gui/Panels.h"
#include "tests/gui/SettingsWindow.h"

#import "front/MainInterface.h"
#import "tests/driving/Driving.h"

#include "adapters/foundation/SystemAdapters.h"

#include <cstdlib>

namespace {

std::function<int()> testsToRun;

} // namespace

/// Runs the tests once the application runs.
@interface GuiTestRunner : NSObject
- (void)runTests:(id)sender;
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

} // namespace tarnwick::gui
