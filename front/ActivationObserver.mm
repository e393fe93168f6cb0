#import "front/ActivationObserver.h"

#include <utility>

@implementation ActivationObserver

- (instancetype)initWithHandler:(std::function<void()>)handler {
    self = [super init];
    if (self) {
        _handler = std::move(handler);
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(applicationDidBecomeActive:)
                                                     name:NSApplicationDidBecomeActiveNotification
                                                   object:nil];
    }
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [super dealloc];
}

- (void)applicationDidBecomeActive:(NSNotification *)notification {
    _handler();
}

@end
