#include "Recording.h"

#import "adapters/foundation/StringConversion.h"

#include <chrono>

namespace {
int living = 0;
}

@implementation StandInObject

- (instancetype)init {
    self = [super init];
    if (self) {
        ++living;
    }
    return self;
}

- (void)dealloc {
    --living;
    [super dealloc];
}

@end

namespace tarnwick::standins {

std::vector<std::string> &calls() {
    static std::vector<std::string> log;
    return log;
}

void record(NSString *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    @autoreleasepool {
        NSString *line = [[[NSString alloc] initWithFormat:format arguments:arguments] autorelease];
        calls().push_back(toString(line));
    }
    va_end(arguments);
}

Answers &answers() {
    static Answers current;
    return current;
}

std::string ownBundlePath() {
    @autoreleasepool {
        return toString([[NSBundle mainBundle] bundlePath]);
    }
}

int livingObjects() {
    return living;
}

void inPool(const std::function<void()> &work) {
    @autoreleasepool {
        work();
    }
}

bool runUntil(const std::function<bool()> &condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition() && std::chrono::steady_clock::now() < end) {
        @autoreleasepool {
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                     beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
        }
    }
    return condition();
}

void reset() {
    drainQueues();
    calls().clear();
    answers() = Answers();
}

} // namespace tarnwick::standins
