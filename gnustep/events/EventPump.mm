// Missing: prompt events, as of GNUstep Base 1.28, whose run loop goes to sleep although events have been
// read into the queue. And GNUstep GUI 0.29, when it is activated, runs a nested loop that waits for a
// connection and reads events on the way, which can queue a mouse-up before its mouse-down. Here every event
// that enters the queue writes to a descriptor that the run loop watches, and the nested loop reads no
// events.

#import "gnustep/events/EventPump.h"

#import <GNUstepGUI/GSDisplayServer.h>
#import <objc/runtime.h>

#import "gnustep/runtime/RunLoopModes.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace {

int wakeDescriptor = -1;

using ReceiveEvent = void (*)(id self, SEL command, void *data, int type, void *extra, NSString *mode);
ReceiveEvent nativeReceiveEvent = nullptr;

} // namespace

@interface GSDisplayServer (TNEventPump)
- (NSUInteger)tnQueuedEvents;
@end

@implementation GSDisplayServer (TNEventPump)

- (NSUInteger)tnQueuedEvents {
    return [event_queue count];
}

@end

/// Empties the descriptor; that it woke the run loop is all it is for.
@interface TNWakeWatcher : NSObject <RunLoopEvents>
@end

@implementation TNWakeWatcher

- (void)receivedEvent:(void *)data type:(RunLoopEventType)type extra:(void *)extra forMode:(NSString *)mode {
    (void)data;
    (void)type;
    (void)extra;
    (void)mode;
    std::uint64_t count = 0;
    // Nothing to read: another mode's watcher was faster.
    (void)!read(wakeDescriptor, &count, sizeof count);
}

@end

namespace {

void receiveEvent(id self, SEL command, void *data, int type, void *extra, NSString *mode) {
    if ([mode isEqualToString:NSConnectionReplyMode]) {
        return;
    }
    const NSUInteger before = [self tnQueuedEvents];
    nativeReceiveEvent(self, command, data, type, extra, mode);
    if (mode && [self tnQueuedEvents] > before) {
        TNWakeRunLoop();
    }
}

void watchDescriptor() {
    wakeDescriptor = eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
    // Watched for the life of the program.
    static TNWakeWatcher *const watcher = [[TNWakeWatcher alloc] init];
    for (NSString *mode in [TNWorkingModes() arrayByAddingObject:NSConnectionReplyMode]) {
        [[NSRunLoop currentRunLoop]
            addEvent:reinterpret_cast<void *>(static_cast<std::intptr_t>(wakeDescriptor))
                type:ET_RDESC
             watcher:watcher
             forMode:mode];
    }
}

} // namespace

void TNInstallEventPump() {
    if (wakeDescriptor >= 0) {
        return;
    }
    watchDescriptor();
    Class server = [GSCurrentServer() class];
    Method method = class_getInstanceMethod(server, @selector(receivedEvent:type:extra:forMode:));
    if (!method) {
        NSLog(@"The display server has no receivedEvent:type:extra:forMode:; events may come late.");
        return;
    }
    nativeReceiveEvent = reinterpret_cast<ReceiveEvent>(method_getImplementation(method));
    class_replaceMethod(
        server, method_getName(method), reinterpret_cast<IMP>(receiveEvent), method_getTypeEncoding(method));
}

void TNWakeRunLoop() {
    if (wakeDescriptor >= 0) {
        const std::uint64_t one = 1;
        (void)!write(wakeDescriptor, &one, sizeof one);
    }
}
