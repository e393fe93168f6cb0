// Stands for the Finder extension: waits for the restart request, looks it up in the suite, says what it
// found.

#import <AppKit/AppKit.h>

#include <cstdio>

@interface RequestListener : NSObject
- (void)received:(NSNotification *)notification;
@end

@implementation RequestListener

- (void)received:(NSNotification *)notification {
    NSUserDefaults *suite =
        [[[NSUserDefaults alloc] initWithSuiteName:@"H7Q2ZK5RX9.org.halvane.Tarnwick"] autorelease];
    NSDictionary *request = [suite objectForKey:@"askActionFromTarnwick"];
    std::printf(
        "%s: %s\n", [[notification name] UTF8String], [[request objectForKey:@"ActionType"] UTF8String]);
    std::fflush(stdout);
    std::exit(0);
}

@end

int main() {
    @autoreleasepool {
        RequestListener *listener = [[[RequestListener alloc] init] autorelease];
        [[NSDistributedNotificationCenter defaultCenter] addObserver:listener
                                                            selector:@selector(received:)
                                                                name:@"askActionFromTarnwick"
                                                              object:nil];
        std::puts("ready");
        std::fflush(stdout);
        [[NSRunLoop currentRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:20]];
    }
    return 1;
}
