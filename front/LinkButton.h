#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <string_view>

/// A push button for one fixed address, which its target opens.
@interface LinkButton : NSButton {
@private
    std::string _address;
}

/// Autoreleased.
+ (LinkButton *)buttonWithTitle:(NSString *)title
                        address:(std::string_view)address
                         target:(id)target
                         action:(SEL)action;

- (std::string_view)address;

@end
