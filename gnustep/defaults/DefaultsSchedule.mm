// Missing: prompt writing of the standard domain, as of GNUstep Base 1.28, which leaves what is not
// synchronised in memory for half a minute, and reads what others have written no sooner. On macOS every
// write leaves the process at once and is seen by the others. Here a change is on disk a moment later, and
// those of other programs are taken over with it, or when this one becomes active.

#import "gnustep/defaults/DefaultsSchedule.h"

#import "gnustep/defaults/SuiteDefaults.h"

#import <AppKit/AppKit.h>

#include <malloc.h>

namespace {

constexpr NSTimeInterval writeDelay = 0.5;

} // namespace

@interface TNDefaultsSchedule : NSObject {
@private
    BOOL _isPending;
}
- (void)defaultsChanged:(NSNotification *)notification;
- (void)write:(id)unused;
@end

@implementation TNDefaultsSchedule

- (void)defaultsChanged:(NSNotification *)notification {
    if (_isPending || ![NSThread isMainThread]) {
        return;
    }
    _isPending = YES;
    [self performSelector:@selector(write:)
               withObject:nil
               afterDelay:writeDelay
                  inModes:[NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, nil]];
}

- (void)write:(id)unused {
    _isPending = NO;
    [[NSUserDefaults standardUserDefaults] synchronize];
    // Reading and writing property lists takes many times their size, and the allocator keeps it.
    malloc_trim(0);
}

@end

void TNWriteDefaultsPromptly() {
    // For the life of the process.
    TNDefaultsSchedule *schedule = [[TNDefaultsSchedule alloc] init];
    [[NSNotificationCenter defaultCenter] addObserver:schedule
                                             selector:@selector(defaultsChanged:)
                                                 name:NSUserDefaultsDidChangeNotification
                                               object:nil];
    [[NSNotificationCenter defaultCenter] addObserver:schedule
                                             selector:@selector(write:)
                                                 name:NSApplicationDidBecomeActiveNotification
                                               object:nil];
}

void TNWriteAllDefaults() {
    [[NSUserDefaults standardUserDefaults] synchronize];
    TNWriteAllSuites();
}
