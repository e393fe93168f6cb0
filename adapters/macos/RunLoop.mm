#import "adapters/foundation/DeferredWork.h"

#include "adapters/foundation/Clocks.h"
#include "adapters/foundation/SystemAdapters.h"
#include "platform/RunLoop.h"

#import <dispatch/dispatch.h>

#include <utility>

namespace tarnwick {
namespace {

class DispatchQueues final : public RunLoop {
public:
    double now() const override { return steadySeconds(); }
    PlistDate date() const override { return dateNow(); }
    std::string today() const override { return localDay(); }
    void performAfterDelay(double seconds, std::function<void()> work) override {
        TNDeferredWork *later = [TNDeferredWork deferredWork:std::move(work)];
        [later performSelector:@selector(run:) withObject:nil afterDelay:seconds];
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
