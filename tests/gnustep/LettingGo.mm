#include "LettingGo.h"

#import <AppKit/AppKit.h>

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
