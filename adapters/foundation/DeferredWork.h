#pragma once

#import <Foundation/Foundation.h>

#include <chrono>
#include <functional>

namespace tarnwick {

/// The time on a clock that nobody sets.
[[nodiscard]] inline double steadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace tarnwick

/// Work to be done once, later, by whoever sends it `run:`.
@interface TNDeferredWork : NSObject {
@private
    std::function<void()> _work;
}
+ (instancetype)deferredWork:(std::function<void()>)work;
- (void)run:(id)unused;
@end
