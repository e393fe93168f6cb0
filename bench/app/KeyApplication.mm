// The application itself, driven by its keys.

#import "bench/app/ClickService.h"
#import "bench/app/KeyService.h"
#import "front/MainInterface.h"
#import "front/SettingsViewController+Actions.h"

#include "adapters/foundation/SystemAdapters.h"

int main(int argc, char *argv[]) {
    @autoreleasepool {
        tarnwick::prepareProcess(argc, argv);
        [NSApplication sharedApplication];
        const tarnwick::MainInterface interface;
        SettingsViewController *controller = interface.controller();
        tarnwick::bench::whenRunning([&interface] { return interface.window(); },
            [controller] {
                tarnwick::bench::serveKeys(
                    [controller] { return [controller tableOf:*[controller shownCategory]]; });
            });
        [NSApp run];
    }
}
