#import "front/LinkButton.h"

#import "front/ControlMaking.h"
#import "front/SettingsViewController.h"

#include "ui/SettingsViewController.h"

@implementation LinkButton

+ (LinkButton *)buttonWithTitle:(NSString *)title
                        address:(std::string_view)address
                     controller:(SettingsViewController *)controller {
    LinkButton *button = [[[LinkButton alloc] init] autorelease];
    button->_address = address;
    button->_controller = controller;
    tarnwick::preparePushButton(button, title, button, @selector(openAddress:));
    return button;
}

- (void)openAddress:(id)sender {
    [_controller controller]->openLink(_address);
}

@end
