#import "front/LinkButton.h"

#import "front/ControlMaking.h"

@implementation LinkButton

+ (LinkButton *)buttonWithTitle:(NSString *)title
                        address:(std::string_view)address
                         target:(id)target
                         action:(SEL)action {
    LinkButton *button = [[[LinkButton alloc] init] autorelease];
    button->_address = address;
    tarnwick::preparePushButton(button, title, target, action);
    return button;
}

- (std::string_view)address {
    return _address;
}

@end
