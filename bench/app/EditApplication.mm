// The application itself, its window on the page of copy targets, clicked in the check box of the second row.

#import "bench/app/ClickService.h"
#import "front/MainInterface.h"
#import "front/SettingsViewController.h"
#import "tests/driving/Driving.h"

#include "adapters/foundation/SystemAdapters.h"

namespace {

constexpr NSInteger row = 1;

NSView *checkBoxIn(NSTableView *table) {
    NSView *cell = [table viewAtColumn:[table columnWithIdentifier:@"Enable"] row:row makeIfNecessary:YES];
    return [cell isKindOfClass:[NSControl class]] ? cell : [[cell subviews] objectAtIndex:0];
}

} // namespace

int main(int argc, char *argv[]) {
    @autoreleasepool {
        tarnwick::prepareProcess(argc, argv);
        [NSApplication sharedApplication];
        const tarnwick::MainInterface interface;
        SettingsViewController *controller = interface.controller();
        tarnwick::bench::whenRunning([&interface] { return interface.window(); },
            [controller] {
                tarnwick::driving::click([controller copyFilesToButton]);
                tarnwick::bench::serveClicks([controller] {
                    return checkBoxIn([controller tableOf:tarnwick::RuleCategory::copyFilesTo]);
                });
            });
        [NSApp run];
    }
}
