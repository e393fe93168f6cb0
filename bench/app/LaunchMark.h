#pragma once

#import <Foundation/Foundation.h>

namespace tarnwick::bench {

/// Makes the file that TARNWICK_BENCH_UP names, so many seconds from now and when the run loop runs, after
/// `work`, which may be null.
void markWhenRunning(double delay, void (*work)());

} // namespace tarnwick::bench
