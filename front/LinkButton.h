#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <string_view>

@class SettingsViewController;

/// A push button that opens one fixed address.
@interface LinkButton : NSButton {
@private
    std::string _address;
    SettingsViewController *_controller;
}

/// The controller is not retained. Autoreleased.
+ (LinkButton *)buttonWithTitle:(NSString *)title
                        address:(std::string_view)address
                     controller:(SettingsViewController *)controller;

@end
