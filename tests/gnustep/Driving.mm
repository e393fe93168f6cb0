#include "Driving.h"

namespace {

constexpr double patienceSeconds = 10;

void pumpOnce() {
    @autoreleasepool {
        NSEvent *event = [NSApp nextEventMatchingMask:NSEventMaskAny
                                            untilDate:[NSDate dateWithTimeIntervalSinceNow:0.005]
                                               inMode:NSDefaultRunLoopMode
                                              dequeue:YES];
        if (event) {
            [NSApp sendEvent:event];
        }
        [NSApp updateWindows];
    }
}

} // namespace

namespace tarnwick::probe {

void settle() {
    for (int idleRounds = 0; idleRounds < 3;) {
        NSEvent *waiting = [NSApp nextEventMatchingMask:NSEventMaskAny
                                              untilDate:nil
                                                 inMode:NSDefaultRunLoopMode
                                                dequeue:NO];
        idleRounds = waiting ? 0 : idleRounds + 1;
        pumpOnce();
    }
}

void waitUntil(const std::function<bool()> &condition) {
    NSDate *end = [NSDate dateWithTimeIntervalSinceNow:patienceSeconds];
    while (!condition() && [end timeIntervalSinceNow] > 0) {
        pumpOnce();
    }
}

void postMouse(NSWindow *window, NSEventType type, NSPoint place, int clicks, NSUInteger modifiers) {
    [NSApp postEvent:[NSEvent mouseEventWithType:type
                                        location:place
                                   modifierFlags:modifiers
                                       timestamp:0
                                    windowNumber:[window windowNumber]
                                         context:nil
                                     eventNumber:0
                                      clickCount:clicks
                                        pressure:1]
             atStart:NO];
}

void postKey(NSWindow *window, NSString *characters) {
    @autoreleasepool {
        for (const auto type : {NSEventTypeKeyDown, NSEventTypeKeyUp}) {
            [NSApp postEvent:[NSEvent keyEventWithType:type
                                                    location:NSZeroPoint
                                               modifierFlags:0
                                                   timestamp:0
                                                windowNumber:[window windowNumber]
                                                     context:nil
                                                  characters:characters
                                 charactersIgnoringModifiers:characters
                                                   isARepeat:NO
                                                     keyCode:0]
                     atStart:NO];
        }
        settle();
    }
}

} // namespace tarnwick::probe

@implementation TNLettingGo

- (void)wait {
    [self performSelector:@selector(look)
               withObject:nil
               afterDelay:0.02
                  inModes:[NSArray arrayWithObject:NSEventTrackingRunLoopMode]];
}

- (void)look {
    if (condition() || ++patience == 500) {
        letGo();
    } else {
        [self wait];
    }
}

@end
