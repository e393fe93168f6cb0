#pragma once

#import <Foundation/Foundation.h>

#include <functional>

/// Work to be done once, later, by whoever sends it `run:`.
@interface TNDeferredWork : NSObject {
@private
    std::function<void()> _work;
}
+ (instancetype)deferredWork:(std::function<void()>)work;
- (void)run:(id)unused;
@end
