#pragma once

#import <AppKit/NSEvent.h>
#import <AppKit/NSView.h>

#pragma clang assume_nonnull begin

@class NSImage;

typedef NSInteger NSControlStateValue;
enum : NSControlStateValue {
    NSControlStateValueMixed = -1,
    NSControlStateValueOff = 0,
    NSControlStateValueOn = 1
};
typedef TN_ENUM(NSUInteger, NSImageScaling){
    NSImageScaleProportionallyDown = 0, NSImageScaleProportionallyUpOrDown = 3};
typedef TN_ENUM(NSUInteger, NSCellImagePosition){NSImageLeft = 2, NSImageRight = 3};
typedef TN_ENUM(NSUInteger, NSButtonType){NSButtonTypeSwitch = 3};
typedef TN_ENUM(NSUInteger, NSBezelStyle){NSBezelStyleRounded = 1};

typedef TN_ENUM(NSInteger, NSBackgroundStyle){NSBackgroundStyleLight = 0, NSBackgroundStyleDark = 1};

@interface NSCell : NSObject <NSCopying>
@property NSBackgroundStyle backgroundStyle;
@property (copy) NSString *stringValue;
@property NSTextAlignment alignment;
@property NSLineBreakMode lineBreakMode;
@property BOOL wraps;
@property (getter=isHighlighted) BOOL highlighted;
@property (getter=isScrollable) BOOL scrollable;
@property (readonly) NSSize cellSize;
@end

@interface NSControl : NSView
@property (nullable, strong) id cell;
@property (nullable, assign) id target;
@property (nullable) SEL action;
@property NSInteger tag;
@property (getter=isEnabled) BOOL enabled;
@property (copy) NSString *stringValue;
@property NSTextAlignment alignment;
@property (nullable, strong) NSFont *font;
- (void)performClick:(nullable id)sender;
- (BOOL)sendAction:(nullable SEL)action to:(nullable id)target;
- (void)sizeToFit;
- (nullable NSText *)currentEditor;
- (BOOL)abortEditing;
@end

@interface NSText : NSView
@property (getter=isFieldEditor) BOOL fieldEditor;
- (void)cut:(nullable id)sender;
- (void)copy:(nullable id)sender;
- (void)paste:(nullable id)sender;
- (void)selectAll:(nullable id)sender;
@end

@interface NSTextView : NSText
@end

@protocol NSControlTextEditingDelegate <NSObject>
@optional
- (void)controlTextDidChange:(NSNotification *)notification;
- (BOOL)control:(NSControl *)control textShouldEndEditing:(NSText *)fieldEditor;
- (BOOL)control:(NSControl *)control textView:(NSTextView *)textView doCommandBySelector:(SEL)command;
@end

@protocol NSTextFieldDelegate <NSControlTextEditingDelegate>
@end

@interface NSTextField : NSControl
@property (nullable, assign) id<NSTextFieldDelegate> delegate;
@property (getter=isBezeled) BOOL bezeled;
@property (getter=isBordered) BOOL bordered;
@property (getter=isEditable) BOOL editable;
@property (getter=isSelectable) BOOL selectable;
@property BOOL drawsBackground;
@property (nullable, copy) NSColor *textColor;
@end

@interface NSButton : NSControl
@property (copy) NSString *title;
@property (copy) NSAttributedString *attributedTitle;
@property (nullable, strong) NSImage *image;
@property NSCellImagePosition imagePosition;
@property (getter=isBordered) BOOL bordered;
@property NSBezelStyle bezelStyle;
@property NSControlStateValue state;
@property BOOL allowsMixedState;
@property (copy) NSString *keyEquivalent;
@property NSEventModifierFlags keyEquivalentModifierMask;
- (void)setButtonType:(NSButtonType)type;
@end

@interface NSImageView : NSControl
@property (nullable, strong) NSImage *image;
@property NSImageScaling imageScaling;
@end

#pragma clang assume_nonnull end
