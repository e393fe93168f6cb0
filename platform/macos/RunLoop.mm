#include "platform/RunLoop.h"
#include "platform/SystemServices.h"

#import <Foundation/Foundation.h>
#import <dispatch/dispatch.h>

#include <utility>

/// Work to be done once, later.
@interface TNDeferredWork : NSObject {
@private
    std::function<void()> _work;
}
- (instancetype)initWithWork:(std::function<void()>)work;
- (void)run;
@end

@implementation TNDeferredWork

- (instancetype)initWithWork:(std::function<void()>)work {
    self = [super init];
    if (self) {
        _work = std::move(work);
    }
    return self;
}

- (void)run {
    _work();
}

@end

namespace tarnwick {
namespace {

class DispatchQueues final : public RunLoop {
public:
    void performAfterDelay(double seconds, std::function<void()> work) override {
        TNDeferredWork *later = [[[TNDeferredWork alloc] initWithWork:std::move(work)] autorelease];
        [later performSelector:@selector(run) withObject:nil afterDelay:seconds];
    }
    void performOnMainQueue(std::function<void()> work) override {
        dispatch_async(dispatch_get_main_queue(), ^{
            work();
        });
    }
    void performInBackground(std::function<void()> work) override {
        dispatch_async(dispatch_get_global_queue(DISPATCH_QUEUE_PRIORITY_DEFAULT, 0), ^{
            @autoreleasepool {
                work();
            }
        });
    }
};

} // namespace

std::unique_ptr<RunLoop> makeRunLoop() {
    return std::make_unique<DispatchQueues>();
}

} // namespace tarnwick
