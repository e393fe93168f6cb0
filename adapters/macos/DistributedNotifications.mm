#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/SystemAdapters.h"
#include "platform/DistributedNotifications.h"

#import <Foundation/Foundation.h>

#include <utility>

namespace tarnwick {
namespace {

class SystemNotifications final : public DistributedNotifications {
public:
    /// Through Core Foundation, whose options are the ones that the port numbers.
    void post(std::string_view name, std::uint32_t options) override {
        CFNotificationCenterPostNotificationWithOptions(CFNotificationCenterGetDistributedCenter(),
            (__bridge CFStringRef)toNSString(name), nullptr, nullptr, options);
    }
    void observe(std::string_view name, std::function<void()> handler) override {
        // The centre keeps the block, and nobody ever takes it away.
        [[NSDistributedNotificationCenter defaultCenter] addObserverForName:toNSString(name)
                                                                     object:nil
                                                                      queue:[NSOperationQueue mainQueue]
                                                                 usingBlock:^(NSNotification *) {
                                                                     handler();
                                                                 }];
    }
};

} // namespace

std::unique_ptr<DistributedNotifications> makeDistributedNotifications() {
    return std::make_unique<SystemNotifications>();
}

} // namespace tarnwick
