// The application itself, which also says when it has published its lists.

#import "bench/app/LaunchMark.h"
#import "front/MainInterface.h"

#include "adapters/foundation/SystemAdapters.h"

namespace {

/// The one after which the interface, made before, publishes its lists.
constexpr double startDelay = 0.01;

} // namespace

int main(int argc, char *argv[]) {
    @autoreleasepool {
        tarnwick::prepareProcess(argc, argv);
        [NSApplication sharedApplication];
        const tarnwick::MainInterface interface;
        tarnwick::bench::markWhenRunning(startDelay, nullptr);
        return NSApplicationMain(argc, const_cast<const char **>(argv));
    }
}
