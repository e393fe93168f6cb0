#import "front/PreferenceSwitch.h"

@implementation PreferenceSwitch

- (instancetype)initWithTitle:(NSString *)title key:(NSString *)key {
    self = [super initWithFrame:NSZeroRect];
    if (self) {
        _key = [key copy];
        [self setButtonType:NSButtonTypeSwitch];
        [self setTitle:title];
        [self setTarget:self];
        [self setAction:@selector(storeState:)];
        [self showStoredValue:nil];
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(showStoredValue:)
                                                     name:NSUserDefaultsDidChangeNotification
                                                   object:nil];
    }
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [_key release];
    [super dealloc];
}

- (void)setFollowUpTarget:(id)target action:(SEL)action {
    _followUpTarget = target;
    _followUpAction = action;
}

/// The opposite of what is stored, which is what the switch showed: its own state may have been shown anew
/// while the press was still being drawn.
- (void)storeState:(id)sender {
    NSUserDefaults *defaults = [NSUserDefaults standardUserDefaults];
    [defaults setBool:![defaults boolForKey:_key] forKey:_key];
    [self showStoredValue:nil];
    if (_followUpAction) {
        [NSApp sendAction:_followUpAction to:_followUpTarget from:self];
    }
}

- (NSInteger)stateForStoredValue:(BOOL)on {
    return on ? NSControlStateValueOn : NSControlStateValueOff;
}

- (void)showStoredValue:(NSNotification *)notification {
    [self setState:[self stateForStoredValue:[[NSUserDefaults standardUserDefaults] boolForKey:_key]]];
}

@end
