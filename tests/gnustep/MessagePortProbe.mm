#include "MessagePortProbe.h"

#import <Foundation/Foundation.h>

#include <sys/socket.h>

/// Of Base's own, undeclared.
@interface NSPort (TNDescriptors)
- (void)getFds:(NSInteger *)descriptors count:(NSInteger *)count;
@end

namespace {

NSString *const portName = @"Tarnwick tests";

NSConnection *listener() {
    static NSConnection *connection = nil;
    if (!connection) {
        connection = [[NSConnection alloc] init];
        [connection setRootObject:@"the root"];
        [connection registerName:portName];
    }
    return connection;
}

bool isListening(int descriptor) {
    int listens = 0;
    socklen_t size = sizeof listens;
    return getsockopt(descriptor, SOL_SOCKET, SO_ACCEPTCONN, &listens, &size) == 0 && listens != 0;
}

} // namespace

namespace tarnwick::probe {

int tellListenersOfNothing() {
    @autoreleasepool {
        NSPort *port = [listener() receivePort];
        NSInteger descriptors[64];
        NSInteger count = 64;
        [port getFds:descriptors count:&count];
        int told = 0;
        for (NSInteger index = 0; index < count; ++index) {
            const auto descriptor = descriptors[index];
            if (!isListening(static_cast<int>(descriptor))) {
                continue;
            }
            [(id<RunLoopEvents>)port receivedEvent:port
                                              type:ET_RPORT
                                             extra:reinterpret_cast<void *>(descriptor)
                                           forMode:NSDefaultRunLoopMode];
            ++told;
        }
        return told;
    }
}

bool listenersTakeConnections() {
    @autoreleasepool {
        __block bool isReached = false;
        __block bool hasEnded = false;
        NSOperationQueue *worker = [[[NSOperationQueue alloc] init] autorelease];
        (void)listener();
        [worker addOperationWithBlock:^{
            NSConnection *connection = [NSConnection connectionWithRegisteredName:portName host:nil];
            isReached = [[connection rootProxy] isEqual:@"the root"];
            hasEnded = true;
        }];
        NSDate *end = [NSDate dateWithTimeIntervalSinceNow:10];
        while (!hasEnded && [end timeIntervalSinceNow] > 0) {
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                     beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
        }
        return isReached;
    }
}

} // namespace tarnwick::probe
