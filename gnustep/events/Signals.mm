// Wrong: SIGTERM and SIGINT may hang a program, as of GNUstep Back 0.29. Its handler sends messages, which
// take locks that the interrupted code may hold: the program then hangs or runs in circles. Here the handler
// only writes a byte, and the run loop does the rest.

#import "gnustep/events/Signals.h"

#import <AppKit/AppKit.h>

#import "gnustep/runtime/RunLoopModes.h"

#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <unistd.h>

namespace {

int readingEnd = -1;
int writingEnd = -1;

void noteRequest(int) {
    // A full pipe holds requests enough.
    (void)!write(writingEnd, "", 1);
}

} // namespace

@interface TNEndWatcher : NSObject <RunLoopEvents>
@end

@implementation TNEndWatcher

- (void)receivedEvent:(void *)data type:(RunLoopEventType)type extra:(void *)extra forMode:(NSString *)mode {
    (void)data;
    (void)type;
    (void)extra;
    (void)mode;
    char requests[16];
    if (read(readingEnd, requests, sizeof requests) > 0) {
        [NSApp terminate:self];
    }
}

@end

void TNInstallSignalHandling() {
    int ends[2];
    if (readingEnd >= 0 || pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    readingEnd = ends[0];
    writingEnd = ends[1];
    // For the life of the process.
    TNEndWatcher *watcher = [[TNEndWatcher alloc] init];
    for (NSString *mode in TNWorkingModes()) {
        [[NSRunLoop currentRunLoop] addEvent:reinterpret_cast<void *>(static_cast<std::intptr_t>(readingEnd))
                                        type:ET_RDESC
                                     watcher:watcher
                                     forMode:mode];
    }
    std::signal(SIGTERM, noteRequest);
    std::signal(SIGINT, noteRequest);
}
