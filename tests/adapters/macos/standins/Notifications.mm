#include "Recording.h"

#import "adapters/foundation/StringConversion.h"

#include <utility>

using namespace tarnwick::standins;

namespace {

using Observation = std::pair<std::string, void (^)(NSNotification *)>;

std::vector<Observation> &observations() {
    static std::vector<Observation> all;
    return all;
}

} // namespace

@implementation StandInDistributedNotificationCenter

+ (StandInDistributedNotificationCenter *)defaultCenter {
    static auto *center = [[StandInDistributedNotificationCenter alloc] init];
    return center;
}

- (id)addObserverForName:(NSString *)name
                  object:(id)object
                   queue:(NSOperationQueue *)queue
              usingBlock:(void (^)(NSNotification *notification))block {
    record(@"addObserverForName(%@, %@, %@)", name, object ? @"object" : @"any object",
        queue == [NSOperationQueue mainQueue] ? @"main queue" : @"another queue");
    observations().emplace_back(tarnwick::toString(name), Block_copy(block));
    return [[[NSObject alloc] init] autorelease];
}

@end

namespace tarnwick::standins {

void deliverNotification(const std::string &name) {
    @autoreleasepool {
        for (const auto &[observed, block] : observations()) {
            if (observed == name) {
                block([NSNotification notificationWithName:toNSString(name) object:nil]);
            }
        }
    }
}

} // namespace tarnwick::standins
