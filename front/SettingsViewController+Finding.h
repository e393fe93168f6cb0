#pragma once

#import "front/SettingsViewController.h"

/// Finding a rule in the table that is shown, by typing there or from the bar above it.
@interface SettingsViewController (Finding)

/// What the key was meant for: YES when it was part of a name that is being typed.
- (BOOL)table:(NSTableView *)table takesTypedKey:(NSEvent *)event;
/// The same for the key that erases a character, which in a table removes the selected row otherwise.
- (BOOL)table:(NSTableView *)table takesErasingKey:(NSEvent *)event;

- (void)showFindBar:(id)sender;
/// The keyboard goes back to the table.
- (void)closeFindBar:(id)sender;
- (void)findNextRule:(id)sender;
- (void)findPreviousRule:(id)sender;
- (BOOL)canShowFindBar;
- (BOOL)canFindAgain;

/// The text to look for is this now; and what was found, in words.
- (void)lookFor:(NSString *)text;
- (NSString *)foundText;

/// The bar, while it is open, stands on the page that is shown. Before another page is shown it leaves.
- (void)takeFindBarAway;
- (void)placeFindBar;

@end
