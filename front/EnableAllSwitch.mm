#import "front/EnableAllSwitch.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"
#import "front/RuleTableView.h"
#import "front/SettingsViewController+Actions.h"

using tarnwick::EnableAllState;

@implementation EnableAllSwitch

- (instancetype)initWithTitle:(NSString *)title
                     category:(tarnwick::RuleCategory)category
                   controller:(SettingsViewController *)controller {
    self = [super initWithTitle:title key:tarnwick::toNSString(tarnwick::factsOf(category).enableAllKey)];
    if (self) {
        _controller = controller;
        _category = category;
        _count =
            [tarnwick::makeLabel(@"", [NSFont systemFontOfSize:12], tarnwick::secondaryTextColor()) retain];
        // A click passes through mixed on its way, but stores what is opposite to the stored value and then
        // shows that.
        [self setAllowsMixedState:YES];
    }
    return self;
}

- (void)dealloc {
    [_count release];
    [super dealloc];
}

- (NSTextField *)countLabel {
    return _count;
}

- (void)followTable:(NSTableView *)table {
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(showRules:)
                                                 name:RuleTableViewDidReloadNotification
                                               object:table];
}

- (NSInteger)stateForStoredValue:(BOOL)on {
    // Nobody to ask while the switch is still being set up.
    const auto state =
        _controller ? [_controller enableAllStateOf:_category stored:on] : tarnwick::EnableAllState::off;
    switch (state) {
    case EnableAllState::mixed:
        return NSControlStateValueMixed;
    case EnableAllState::on:
        return NSControlStateValueOn;
    case EnableAllState::off:
        break;
    }
    return NSControlStateValueOff;
}

- (void)showRules:(NSNotification *)notification {
    [self showStoredValue:notification];
    [_count setStringValue:[_controller enabledTextOf:_category]];
}

@end
