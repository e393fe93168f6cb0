// Missing: reports of exceptions in event handlers, as of GNUstep GUI 0.29: `-[NSApplication run]` drops them
// unless the default NSExceptionHandlerMask is 1, and those outside the loop bring up a modal panel.

#import "gnustep/events/Exceptions.h"

#import <Foundation/Foundation.h>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr int softwareErrorStatus = 70;

TNAfterException afterException = TNAfterException::goesOn;

void reportUncaught(NSException *exception) {
    TNReportException(exception);
    _exit(softwareErrorStatus);
}

} // namespace

void TNReportException(NSException *exception) {
    std::fprintf(stderr, "Uncaught exception %s: %s\n", [[exception name] UTF8String],
        [[exception reason] UTF8String]);
    std::fflush(stderr);
    if (afterException == TNAfterException::ends) {
        _exit(softwareErrorStatus);
    }
}

void TNInstallExceptionReporting(TNAfterException after) {
    afterException = after;
    NSSetUncaughtExceptionHandler(reportUncaught);
}
