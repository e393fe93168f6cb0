#pragma once

#import <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class NSApplication, NSButton, NSEvent, NSMenu, NSMenuItem, NSTabView, NSTableView, NSText, NSTextField,
    NSView, NSWindow;

@protocol NSStandardKeyBindingResponding <NSObject>
@optional
- (void)cancelOperation:(nullable id)sender;
- (void)insertNewline:(nullable id)sender;
@end

@interface NSResponder : NSObject <NSStandardKeyBindingResponding>
@property (nullable, strong) NSMenu *menu;
- (void)keyDown:(NSEvent *)event;
@end

@interface NSObject (NSNibAwaking)
- (void)awakeFromNib;
@end

@protocol NSUserInterfaceItemIdentification
@property (nullable, copy) NSString *identifier;
@end

@interface NSViewController : NSResponder
@property (strong) NSView *view;
- (nullable instancetype)initWithNibName:(nullable NSString *)name bundle:(nullable NSBundle *)bundle;
- (void)loadView;
- (void)viewDidLoad TN_SINCE(10.10);
@end

#pragma clang assume_nonnull end
