#pragma once

#import <AppKit/AppKit.h>

#include <functional>

/// Tells when the user comes back to the application.
@interface ActivationObserver : NSObject {
@private
    std::function<void()> _handler;
}

- (instancetype)initWithHandler:(std::function<void()>)handler;

@end
