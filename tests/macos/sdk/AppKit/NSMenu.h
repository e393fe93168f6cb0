#pragma once

#import <AppKit/NSControls.h>

#pragma clang assume_nonnull begin

@class NSMenu;

@interface NSMenuItem : NSObject <NSCopying>
@property (copy) NSString *title;
@property (nullable) SEL action;
@property (getter=isEnabled) BOOL enabled;
@property (nullable, strong) NSImage *image;
@property (nullable, assign) id target;
@property NSInteger tag;
@property (copy) NSString *keyEquivalent;
@property (nullable, copy) NSString *toolTip;
@property NSControlStateValue state;
@property NSEventModifierFlags keyEquivalentModifierMask;
@property (nullable, strong) NSMenu *submenu;
+ (NSMenuItem *)separatorItem;
- (instancetype)initWithTitle:(NSString *)title action:(nullable SEL)action keyEquivalent:(NSString *)key;
@end

@protocol NSMenuDelegate <NSObject>
@optional
- (void)menuNeedsUpdate:(NSMenu *)menu;
- (void)menuWillOpen:(NSMenu *)menu;
- (void)menuDidClose:(NSMenu *)menu;
@end

@interface NSMenu : NSObject <NSCopying>
@property (copy) NSString *title;
@property (nullable, assign) id<NSMenuDelegate> delegate;
@property (readonly) NSInteger numberOfItems;
- (instancetype)initWithTitle:(NSString *)title;
- (void)addItem:(NSMenuItem *)item;
- (void)removeItemAtIndex:(NSInteger)index;
- (nullable NSMenuItem *)itemAtIndex:(NSInteger)index;
- (nullable NSMenuItem *)itemWithTag:(NSInteger)tag;
- (BOOL)popUpMenuPositioningItem:(nullable NSMenuItem *)item
                      atLocation:(NSPoint)location
                          inView:(nullable NSView *)view;
@end

#pragma clang assume_nonnull end
