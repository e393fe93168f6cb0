#include "platform/RunLoop.h"
#include "platform/SystemServices.h"

#import <AppKit/AppKit.h>

#include <utility>

/// Work to be done once, later.
@interface TNDeferredWork : NSObject {
@private
    std::function<void()> _work;
}
- (id)initWithWork:(std::function<void()>)work;
- (void)run:(id)unused;
- (void)runInBackground:(id)unused;
@end

@implementation TNDeferredWork

- (id)initWithWork:(std::function<void()>)work {
    self = [super init];
    if (self) {
        _work = std::move(work);
    }
    return self;
}

- (void)run:(id)unused {
    _work();
}

- (void)runInBackground:(id)unused {
    @autoreleasepool {
        _work();
    }
}

@end

namespace tarnwick {
namespace {

TNDeferredWork *deferred(std::function<void()> work) {
    return [[[TNDeferredWork alloc] initWithWork:std::move(work)] autorelease];
}

NSArray *commonModes() {
    return [NSArray
        arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode, nil];
}

class GNUstepRunLoop final : public RunLoop {
public:
    void performAfterDelay(double seconds, std::function<void()> work) override {
        [deferred(std::move(work)) performSelector:@selector(run:) withObject:nil afterDelay:seconds];
    }
    void performOnMainQueue(std::function<void()> work) override {
        [deferred(std::move(work)) performSelectorOnMainThread:@selector(run:)
                                                    withObject:nil
                                                 waitUntilDone:NO
                                                         modes:commonModes()];
    }
    void performInBackground(std::function<void()> work) override {
        [NSThread detachNewThreadSelector:@selector(runInBackground:)
                                 toTarget:deferred(std::move(work))
                               withObject:nil];
    }
};

} // namespace

std::unique_ptr<RunLoop> makeRunLoop() {
    return std::make_unique<GNUstepRunLoop>();
}

} // namespace tarnwick
