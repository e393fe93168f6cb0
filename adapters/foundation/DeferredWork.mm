#import "adapters/foundation/DeferredWork.h"

#include <utility>

@implementation TNDeferredWork

+ (instancetype)deferredWork:(std::function<void()>)work {
    TNDeferredWork *deferred = [[[self alloc] init] autorelease];
    deferred->_work = std::move(work);
    return deferred;
}

- (void)run:(id)unused {
    @autoreleasepool {
        _work();
    }
}

@end
