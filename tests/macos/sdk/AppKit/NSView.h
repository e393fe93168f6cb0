#pragma once

#import <AppKit/NSDrawing.h>
#import <AppKit/NSPasteboard.h>
#import <AppKit/NSResponder.h>

#pragma clang assume_nonnull begin

@class CALayer;
@class NSScrollView;

typedef TN_OPTIONS(NSUInteger, NSAutoresizingMaskOptions){
    NSViewMinXMargin = 1,
    NSViewWidthSizable = 2,
    NSViewMaxXMargin = 4,
    NSViewMinYMargin = 8,
    NSViewHeightSizable = 16,
    NSViewMaxYMargin = 32,
};

extern "C" NSString *const NSViewFrameDidChangeNotification;

@interface NSView : NSResponder <NSUserInterfaceItemIdentification, NSDraggingDestination>
@property (nullable, readonly, assign) NSWindow *window;
@property (nullable, readonly, assign) NSView *superview;
@property (copy) NSArray<__kindof NSView *> *subviews;
@property NSRect frame;
@property (readonly) NSRect bounds;
@property (readonly) NSRect visibleRect;
@property NSAutoresizingMaskOptions autoresizingMask;
@property BOOL needsDisplay;
@property (getter=isHidden) BOOL hidden;
@property BOOL wantsLayer;
@property (nullable, strong) CALayer *layer;
@property (readonly, strong) NSAppearance *effectiveAppearance;
@property (readonly) BOOL mouseDownCanMoveWindow;
@property (nullable, copy) NSString *toolTip;
@property (readonly) NSInteger tag;
@property (nullable, copy) NSString *accessibilityLabel;
@property (nullable, assign) NSView *nextKeyView;
- (BOOL)isDescendantOf:(NSView *)view;
- (NSRect)convertRect:(NSRect)rect toView:(nullable NSView *)view;
- (instancetype)initWithFrame:(NSRect)frame;
- (void)setAccessibilityHelp:(nullable NSString *)help;
- (void)setAccessibilitySelected:(BOOL)selected;
- (void)setFrameSize:(NSSize)size;
- (void)setFrameOrigin:(NSPoint)origin;
- (void)addSubview:(NSView *)view;
- (void)removeFromSuperview;
@property (nullable, readonly, strong) NSScrollView *enclosingScrollView;
- (NSPoint)convertPoint:(NSPoint)point fromView:(nullable NSView *)view;
- (nullable NSMenu *)menuForEvent:(NSEvent *)event;
- (nullable NSView *)hitTest:(NSPoint)point;
- (void)drawRect:(NSRect)rect;
- (void)resizeSubviewsWithOldSize:(NSSize)size;
- (void)viewWillMoveToWindow:(nullable NSWindow *)window;
- (void)registerForDraggedTypes:(NSArray<NSString *> *)types;
@end

@interface NSTabViewItem : NSObject
@property (nullable, strong) NSView *view;
- (instancetype)initWithIdentifier:(id)identifier;
@end

typedef TN_ENUM(NSUInteger, NSTabViewType){NSNoTabsNoBorder = 6};

@interface NSTabView : NSView
@property NSTabViewType tabViewType;
@property BOOL drawsBackground;
@property (nullable, readonly, strong) NSTabViewItem *selectedTabViewItem;
@property (copy) NSArray *tabViewItems;
- (void)addTabViewItem:(NSTabViewItem *)item;
- (void)selectTabViewItem:(nullable NSTabViewItem *)item;
- (NSTabViewItem *)tabViewItemAtIndex:(NSInteger)index;
- (NSInteger)indexOfTabViewItem:(NSTabViewItem *)item;
@end

typedef TN_ENUM(NSUInteger, NSBoxType){NSBoxSeparator = 2};
typedef TN_ENUM(NSUInteger, NSTitlePosition){NSNoTitle = 0};

@interface NSBox : NSView
@property NSBoxType boxType;
@property NSTitlePosition titlePosition;
@property NSSize contentViewMargins;
@property (nullable, strong) NSView *contentView;
@end

typedef TN_ENUM(NSUInteger, NSBorderType){NSBezelBorder = 2};

@interface NSScrollView : NSView
@property NSBorderType borderType;
@property BOOL hasVerticalScroller;
@property BOOL hasHorizontalScroller;
@property BOOL autohidesScrollers;
@property (nullable, strong) NSView *documentView;
@end

#pragma clang assume_nonnull end
