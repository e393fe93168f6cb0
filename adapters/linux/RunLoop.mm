#import "adapters/foundation/DeferredWork.h"

#include "adapters/foundation/Clocks.h"
#include "adapters/foundation/SystemAdapters.h"
#include "platform/RunLoop.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace tarnwick {
namespace {

NSArray *commonModes() {
    return [NSArray
        arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode, nil];
}

class GNUstepRunLoop final : public RunLoop {
public:
    GNUstepRunLoop() {
        // While the main thread has none yet, what is queued for it would run at once.
        [NSRunLoop mainRunLoop];
    }
    double now() const override { return steadySeconds(); }
    PlistDate date() const override { return dateNow(); }
    std::string today() const override { return localDay(); }
    void performAfterDelay(double seconds, std::function<void()> work) override {
        [[TNDeferredWork deferredWork:std::move(work)] performSelector:@selector(run:)
                                                            withObject:nil
                                                            afterDelay:seconds];
    }
    void performOnMainQueue(std::function<void()> work) override {
        [[TNDeferredWork deferredWork:std::move(work)] performSelectorOnMainThread:@selector(run:)
                                                                        withObject:nil
                                                                     waitUntilDone:NO
                                                                             modes:commonModes()];
    }
    void performInBackground(std::function<void()> work) override {
        [NSThread detachNewThreadSelector:@selector(run:)
                                 toTarget:[TNDeferredWork deferredWork:std::move(work)]
                               withObject:nil];
    }
};

} // namespace

std::unique_ptr<RunLoop> makeRunLoop() {
    return std::make_unique<GNUstepRunLoop>();
}

} // namespace tarnwick
