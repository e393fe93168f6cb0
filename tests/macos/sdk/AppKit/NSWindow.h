#pragma once

#import <AppKit/NSView.h>

#pragma clang assume_nonnull begin

typedef TN_OPTIONS(NSUInteger, NSWindowStyleMask){
    NSWindowStyleMaskTitled = 1,
    NSWindowStyleMaskClosable = 2,
    NSWindowStyleMaskMiniaturizable = 4,
    NSWindowStyleMaskResizable = 8,
};
typedef TN_OPTIONS(NSUInteger, NSWindowCollectionBehavior){NSWindowCollectionBehaviorFullScreenNone = 1 << 9};
typedef TN_ENUM(NSInteger, NSWindowTabbingMode){NSWindowTabbingModeDisallowed = 2};
typedef TN_ENUM(NSUInteger, NSBackingStoreType){NSBackingStoreBuffered = 2};
extern "C" NSString *const NSWindowDidUpdateNotification;
extern "C" NSString *const NSWindowWillCloseNotification;

@class NSWindow;
@protocol NSWindowDelegate <NSObject>
@optional
- (nullable NSUndoManager *)windowWillReturnUndoManager:(NSWindow *)window;
@end

@interface NSWindow : NSResponder
@property (nullable, assign) id<NSWindowDelegate> delegate;
@property (copy) NSString *title;
@property (nullable, strong) __kindof NSView *contentView;
@property NSSize contentMinSize;
@property (nullable, weak) NSView *initialFirstResponder;
@property NSWindowCollectionBehavior collectionBehavior;
@property NSWindowTabbingMode tabbingMode TN_SINCE(10.12);
@property BOOL autorecalculatesKeyViewLoop;
@property (getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property (getter=isMovableByWindowBackground) BOOL movableByWindowBackground;
@property (nullable, readonly, assign) NSResponder *firstResponder;
- (instancetype)initWithContentRect:(NSRect)rect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backing
                              defer:(BOOL)defer;
- (void)setContentSize:(NSSize)size;
- (void)center;
- (BOOL)setFrameAutosaveName:(NSString *)name;
- (BOOL)makeFirstResponder:(nullable NSResponder *)responder;
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)performClose:(nullable id)sender;
- (void)performMiniaturize:(nullable id)sender;
- (void)performZoom:(nullable id)sender;
@end

#pragma clang assume_nonnull end
