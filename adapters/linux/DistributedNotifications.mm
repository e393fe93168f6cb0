#import "adapters/foundation/StringConversion.h"
#import "gnustep/defaults/SuiteDefaults.h"

#include "adapters/foundation/SystemAdapters.h"
#include "platform/DistributedNotifications.h"

#import <Foundation/Foundation.h>

#include <utility>

/// Calls a handler for each notification; observes for the life of the process.
@interface TNNotificationHandler : NSObject {
@private
    std::function<void()> _handler;
}
- (id)initWithHandler:(std::function<void()>)handler;
- (void)received:(NSNotification *)notification;
@end

@implementation TNNotificationHandler

- (id)initWithHandler:(std::function<void()>)handler {
    self = [super init];
    if (self) {
        _handler = std::move(handler);
    }
    return self;
}

- (void)received:(NSNotification *)notification {
    _handler();
}

@end

namespace tarnwick {
namespace {

/// A session here is the user's, so posting to all sessions is posting to the one.
class GNUstepNotifications final : public DistributedNotifications {
public:
    /// On macOS another process sees a written preference at once, here once it is on disk: what a
    /// notification announces must be found by whoever receives it.
    void post(std::string_view name, std::uint32_t options) override {
        TNWriteAllSuites();
        [center() postNotificationName:toNSString(name)
                                object:nil
                              userInfo:nil
                    deliverImmediately:(options & deliverImmediately) != 0];
    }
    void observe(std::string_view name, std::function<void()> handler) override {
        [center() addObserver:[[TNNotificationHandler alloc] initWithHandler:std::move(handler)]
                     selector:@selector(received:)
                         name:toNSString(name)
                       object:nil];
    }

private:
    static NSDistributedNotificationCenter *center() {
        return [NSDistributedNotificationCenter defaultCenter];
    }
};

} // namespace

std::unique_ptr<DistributedNotifications> makeDistributedNotifications() {
    return std::make_unique<GNUstepNotifications>();
}

} // namespace tarnwick
