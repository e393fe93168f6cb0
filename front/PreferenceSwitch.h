#pragma once

#import <AppKit/AppKit.h>

/// A check box tied to one boolean of the standard preference domain: it shows the stored value, also when
/// that changes behind its back, and a click stores the new one before the follow-up action is sent.
@interface PreferenceSwitch : NSButton {
@private
    NSString *_key;
    id _followUpTarget;
    SEL _followUpAction;
    NSString *_ownToolTip;
    BOOL _isForced;
}

- (instancetype)initWithTitle:(NSString *)title key:(NSString *)key;
- (NSString *)key;

/// Whether an administrator has set the key: the switch is disabled then and says so.
- (void)setForced:(BOOL)forced;

/// What is told after a click has been stored; the target is not retained.
- (void)setFollowUpTarget:(id)target action:(SEL)action;

/// Shows what is stored, as it is shown by itself whenever that changes.
- (void)showStoredValue:(NSNotification *)notification;

/// What to show for a stored value; for subclasses that show more than what is stored.
- (NSInteger)stateForStoredValue:(BOOL)on;

@end
