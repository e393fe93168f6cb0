#import "tests/driving/Driving.h"

namespace tarnwick::driving {
namespace {

constexpr double patienceSeconds = 10;
constexpr double pumpSeconds = 0.005;
constexpr int idleRoundsToSettle = 3;
constexpr int dragSteps = 12;

NSTimeInterval now() {
    return static_cast<NSTimeInterval>([[NSProcessInfo processInfo] systemUptime]);
}

} // namespace

bool pump(double seconds) {
    @autoreleasepool {
        NSEvent *event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                            untilDate:[NSDate dateWithTimeIntervalSinceNow:seconds]
                                               inMode:NSDefaultRunLoopMode
                                              dequeue:YES];
        if (event) {
            [NSApp sendEvent:event];
        }
        [NSApp updateWindows];
        return event != nil;
    }
}

void settle() {
    for (int idleRounds = 0; idleRounds < idleRoundsToSettle;) {
        idleRounds = pump(pumpSeconds) ? 0 : idleRounds + 1;
    }
}

bool waitUntil(const std::function<bool()> &condition) {
    NSDate *end = [NSDate dateWithTimeIntervalSinceNow:patienceSeconds];
    while (!condition()) {
        if ([end timeIntervalSinceNow] < 0) {
            return false;
        }
        pump(pumpSeconds);
    }
    return true;
}

NSView *firstView(NSView *view, const std::function<bool(NSView *)> &matches) {
    if ([view isHidden]) {
        return nil;
    }
    if (matches(view)) {
        return view;
    }
    for (NSView *inner in [view subviews]) {
        if (NSView *found = firstView(inner, matches)) {
            return found;
        }
    }
    return nil;
}

NSPoint middleOf(NSView *view) {
    const NSRect bounds = [view bounds];
    return [view convertPoint:NSMakePoint(NSMidX(bounds), NSMidY(bounds)) toView:nil];
}

NSEvent *mouseEvent(NSWindow *window, NSEventType type, NSPoint place, int clicks, NSUInteger modifiers) {
    return [NSEvent mouseEventWithType:type
                              location:place
                         modifierFlags:modifiers
                             timestamp:now()
                          windowNumber:[window windowNumber]
                               context:nil
                           eventNumber:0
                            clickCount:clicks
                              pressure:1];
}

void postMouse(NSWindow *window, NSEventType type, NSPoint place, int clicks, NSUInteger modifiers) {
    [NSApp postEvent:mouseEvent(window, type, place, clicks, modifiers) atStart:NO];
}

void postClicks(NSWindow *window, NSPoint place, int clicks, NSUInteger modifiers) {
    for (int click = 1; click <= clicks; ++click) {
        postMouse(window, NSLeftMouseDown, place, click, modifiers);
        postMouse(window, NSLeftMouseUp, place, click, modifiers);
    }
}

void postKey(NSWindow *window, NSString *characters, NSUInteger modifiers) {
    for (const auto type : {NSKeyDown, NSKeyUp}) {
        [NSApp postEvent:[NSEvent keyEventWithType:type
                                                location:NSZeroPoint
                                           modifierFlags:modifiers
                                               timestamp:now()
                                            windowNumber:[window windowNumber]
                                                 context:nil
                                              characters:characters
                             charactersIgnoringModifiers:characters
                                               isARepeat:NO
                                                 keyCode:0]
                 atStart:NO];
    }
}

void click(NSWindow *window, NSPoint place, int clicks, NSUInteger modifiers) {
    @autoreleasepool {
        postClicks(window, place, clicks, modifiers);
        settle();
    }
}

void click(NSView *view) {
    click([view window], middleOf(view));
}

void press(NSWindow *window, NSString *characters, NSUInteger modifiers) {
    @autoreleasepool {
        postKey(window, characters, modifiers);
        settle();
    }
}

void type(NSWindow *window, NSString *text) {
    for (NSUInteger index = 0; index < [text length]; ++index) {
        press(window, [text substringWithRange:NSMakeRange(index, 1)]);
    }
}

void drag(NSWindow *window, NSPoint start, NSPoint end) {
    @autoreleasepool {
        postMouse(window, NSLeftMouseDown, start);
        for (int step = 1; step <= dragSteps; ++step) {
            const double part = static_cast<double>(step) / dragSteps;
            postMouse(window, NSLeftMouseDragged,
                NSMakePoint(start.x + (end.x - start.x) * part, start.y + (end.y - start.y) * part));
        }
        postMouse(window, NSLeftMouseUp, end);
        settle();
    }
}

} // namespace tarnwick::driving
