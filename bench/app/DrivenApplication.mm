#import "bench/app/DrivenApplication.h"

#import "bench/app/ClickService.h"
#import "front/MainInterface.h"

#include "adapters/foundation/SystemAdapters.h"

namespace tarnwick::bench {

void runApplication(
    int argc, char *argv[], const std::function<void(SettingsViewController *controller)> &serve) {
    @autoreleasepool {
        prepareProcess(argc, argv);
        [NSApplication sharedApplication];
        const MainInterface interface;
        whenRunning([&interface] { return interface.window(); },
            [&interface, &serve] { serve(interface.controller()); });
        [NSApp run];
    }
}

} // namespace tarnwick::bench
