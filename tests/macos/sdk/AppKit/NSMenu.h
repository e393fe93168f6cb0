#pragma once

#import <AppKit/NSControls.h>

#pragma clang assume_nonnull begin

@class NSMenu;

@interface NSMenuItem : NSObject <NSCopying>
@property (copy) NSString *title;
@property (nullable) SEL action;
@property (nullable, assign) id target;
@property NSInteger tag;
@property NSControlStateValue state;
@property NSEventModifierFlags keyEquivalentModifierMask;
@property (nullable, strong) NSMenu *submenu;
+ (NSMenuItem *)separatorItem;
- (instancetype)initWithTitle:(NSString *)title action:(nullable SEL)action keyEquivalent:(NSString *)key;
@end

@interface NSMenu : NSObject <NSCopying>
@property (copy) NSString *title;
- (instancetype)initWithTitle:(NSString *)title;
- (void)addItem:(NSMenuItem *)item;
@end

#pragma clang assume_nonnull end
