#include "adapters/foundation/SystemAdapters.h"

#import "TNStartUp.h"

#include <cstdlib>

namespace tarnwick {
namespace {

/// Tests and scripts have addresses opened by a program of their own.
NSString *chosenOpener() {
    const char *path = std::getenv("TARNWICK_OPENER");
    return path && *path ? [NSString stringWithUTF8String:path] : nil;
}

} // namespace

void prepareProcess(int, char *[]) {
    @autoreleasepool {
        TNPrepareProcess({.identifier = @"org.halvane.Tarnwick",
            .opener = chosenOpener(),
            .endsAtExceptions = std::getenv("TARNWICK_STRICT_EXCEPTIONS") != nullptr});
    }
}

} // namespace tarnwick
