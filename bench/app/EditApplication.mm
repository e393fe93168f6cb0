// The application itself, its window on the page of copy targets, clicked in the check box of the second row.

#import "bench/app/ClickService.h"
#import "front/MainInterface.h"
#import "front/SettingsOutlets.h"
#import "front/SettingsViewController.h"
#import "tests/driving/Driving.h"

#include "platform/SystemServices.h"

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
        SettingsOutlets *outlets = [interface.controller() outlets];
        tarnwick::bench::whenRunning([&interface] { return interface.window(); },
            [outlets] {
                tarnwick::driving::click([outlets copyFilesToButton]);
                tarnwick::bench::serveClicks(
                    [outlets] { return checkBoxIn([outlets tableOf:tarnwick::RuleCategory::copyFilesTo]); });
            });
        [NSApp run];
    }
}
