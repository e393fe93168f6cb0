#import "front/MainInterface.h"

#include "adapters/foundation/SystemAdapters.h"

int main(int argc, char *argv[]) {
    @autoreleasepool {
        tarnwick::prepareProcess(argc, argv);
        [NSApplication sharedApplication];
        const tarnwick::MainInterface interface;
        return NSApplicationMain(argc, const_cast<const char **>(argv));
    }
}
