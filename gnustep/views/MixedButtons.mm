// Wrong: the look of a check box in the mixed state, as of GNUstep GUI 0.29, which draws it as one that is
// on.

#import "TNTheme.h"

@interface NSButtonCell (TNMixedState)
@end

@implementation NSButtonCell (TNMixedState)

/// The picture of what is on takes part in that of what is mixed: there are places for two.
- (void)setState:(NSInteger)state {
    [super setState:state];
    if (![self allowsMixedState]) {
        return;
    }
    const BOOL isMixed = [self state] == NSControlStateValueMixed;
    [self setAlternateImage:[NSImage imageNamed:isMixed ? TNThemeMixedSwitchImage : @"NSHighlightedSwitch"]];
}

@end
