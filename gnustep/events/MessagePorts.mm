// Wrong: a busy program stands still as soon as another instance of it starts, as of GNUstep Base 1.28. When
// a handler runs the run loop, a listening port may be given the same event twice, and the second time it
// waits for a connection, for ever. Here the second one finds none.

#import "gnustep/runtime/MethodReplacement.h"

#import <Foundation/Foundation.h>

#include <cstdint>
#include <fcntl.h>
#include <sys/socket.h>

namespace {

using ReceiveEvent = void (*)(
    id self, SEL command, void *data, RunLoopEventType type, void *extra, NSString *mode);

ReceiveEvent nativeReceiveEvent = nullptr;

bool isListening(int descriptor) {
    int listens = 0;
    socklen_t size = sizeof listens;
    return getsockopt(descriptor, SOL_SOCKET, SO_ACCEPTCONN, &listens, &size) == 0 && listens != 0;
}

void receiveEvent(id self, SEL command, void *data, RunLoopEventType type, void *extra, NSString *mode) {
    const auto descriptor = static_cast<int>(reinterpret_cast<std::intptr_t>(extra));
    if (isListening(descriptor)) {
        // The port takes a failed accept for a connection that was handled elsewhere.
        fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    }
    nativeReceiveEvent(self, command, data, type, extra, mode);
}

} // namespace

@interface NSMessagePort (TNPatience)
@end

@implementation NSMessagePort (TNPatience)

+ (void)load {
    nativeReceiveEvent = TNReplaceMethod(self, @selector(receivedEvent:type:extra:forMode:), receiveEvent);
}

@end
