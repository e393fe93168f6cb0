#pragma once

#import <Foundation/Foundation.h>

#include <functional>

/// Ends a drag, whose loop lets nothing else run, from a timer.
@interface TNLettingGo : NSObject {
@public
    std::function<bool()> condition;
    std::function<void()> letGo;
    int patience;
}
- (void)wait;
@end
