#import "front/PreferenceSwitch.h"

#import "front/ControlMaking.h"

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
    [_ownToolTip release];
    [super dealloc];
}

- (NSString *)key {
    return _key;
}

- (void)setForced:(BOOL)forced {
    if (forced == _isForced) {
        return;
    }
    _isForced = forced;
    [self setEnabled:!forced];
    if (forced) {
        _ownToolTip = [[self toolTip] copy];
        [self setToolTip:tarnwick::localizedText("An administrator has set this and keeps it as it is.")];
    } else {
        [self setToolTip:_ownToolTip];
        [_ownToolTip release];
        _ownToolTip = nil;
    }
    [self setAccessibilityHelp:forced ? [self toolTip] : nil];
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
    const NSInteger state =
        [self stateForStoredValue:[[NSUserDefaults standardUserDefaults] boolForKey:_key]];
    // Told of each change of any setting, it is drawn anew only for its own.
    if (state != [self state]) {
        [self setState:state];
    }
}

@end
