#pragma once

#import <AppKit/AppKit.h>

@class SettingsViewController;

/// The bar above a table in which a text is looked for: the text, what was found, and buttons. It takes its
/// room from the table that it stands above, and gives it back. What it finds is the controller's business.
@interface FindBar : NSView <NSTextFieldDelegate> {
@private
    SettingsViewController *_controller;
    NSTableView *_table;
    NSTextField *_field;
    NSTextField *_count;
    NSButton *_previous;
    NSButton *_next;
}

/// The controller lives longer and is not retained.
- (instancetype)initWithController:(SettingsViewController *)controller;

/// Nil: the bar is nowhere. The keyboard stays behind, with the table that the bar leaves.
- (void)showAbove:(NSTableView *)table;
/// The keyboard goes into the text, all of which is selected.
- (void)takeKeyboard;

@end
