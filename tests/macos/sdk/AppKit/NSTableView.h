#pragma once

#import <AppKit/NSControls.h>
#import <AppKit/NSPasteboard.h>

#pragma clang assume_nonnull begin

typedef TN_ENUM(NSUInteger, NSTableViewDropOperation){NSTableViewDropOn = 0, NSTableViewDropAbove = 1};
typedef TN_OPTIONS(NSUInteger, NSTableViewGridLineStyle){NSTableViewGridNone = 0};
typedef TN_ENUM(NSUInteger, NSTableViewColumnAutoresizingStyle){
    NSTableViewUniformColumnAutoresizingStyle = 1};
typedef TN_OPTIONS(NSUInteger, NSTableColumnResizingOptions){
    NSTableColumnNoResizing = 0, NSTableColumnAutoresizingMask = 1, NSTableColumnUserResizingMask = 2};

typedef TN_ENUM(NSInteger, NSTableViewStyle){NSTableViewStylePlain = 4};

@interface NSTableHeaderCell : NSCell
@end

@interface NSTableColumn : NSObject
@property (copy) NSString *identifier;
@property (strong) __kindof NSCell *headerCell;
@property CGFloat width;
@property CGFloat minWidth;
@property CGFloat maxWidth;
@property (getter=isEditable) BOOL editable;
@property NSTableColumnResizingOptions resizingMask;
- (instancetype)initWithIdentifier:(NSString *)identifier;
@end

@protocol NSTableViewDelegate <NSControlTextEditingDelegate>
@optional
- (nullable NSView *)tableView:(NSTableView *)tableView
            viewForTableColumn:(nullable NSTableColumn *)column
                           row:(NSInteger)row;
- (CGFloat)tableView:(NSTableView *)tableView heightOfRow:(NSInteger)row;
- (void)tableViewSelectionDidChange:(NSNotification *)notification;
@end

@protocol NSTableViewDataSource <NSObject>
@optional
- (NSInteger)numberOfRowsInTableView:(NSTableView *)tableView;
- (BOOL)tableView:(NSTableView *)tableView
    writeRowsWithIndexes:(NSIndexSet *)rows
            toPasteboard:(NSPasteboard *)pasteboard;
- (NSDragOperation)tableView:(NSTableView *)tableView
                validateDrop:(id<NSDraggingInfo>)info
                 proposedRow:(NSInteger)row
       proposedDropOperation:(NSTableViewDropOperation)operation;
- (BOOL)tableView:(NSTableView *)tableView
       acceptDrop:(id<NSDraggingInfo>)info
              row:(NSInteger)row
    dropOperation:(NSTableViewDropOperation)operation;
@end

extern "C" NSString *const NSTableViewSelectionDidChangeNotification;

@interface NSTableView : NSControl
@property (nullable, assign) id<NSTableViewDataSource> dataSource;
@property (nullable, assign) id<NSTableViewDelegate> delegate;
@property (readonly) NSInteger numberOfRows;
@property (readonly) NSInteger selectedRow;
@property (readonly) NSInteger clickedRow;
@property (readonly) NSInteger clickedColumn;
- (NSRange)rowsInRect:(NSRect)rect;
@property (copy, readonly) NSArray<NSTableColumn *> *tableColumns;
@property CGFloat rowHeight;
@property NSTableViewStyle style TN_SINCE(11.0);
@property NSSize intercellSpacing;
@property BOOL allowsMultipleSelection;
@property BOOL allowsEmptySelection;
@property BOOL allowsColumnReordering;
@property BOOL usesAlternatingRowBackgroundColors;
@property NSTableViewGridLineStyle gridStyleMask;
@property NSTableViewColumnAutoresizingStyle columnAutoresizingStyle;
@property (nullable) SEL doubleAction;
- (void)addTableColumn:(NSTableColumn *)column;
- (void)reloadData;
- (void)sizeToFit;
- (void)selectRowIndexes:(NSIndexSet *)rows byExtendingSelection:(BOOL)extend;
- (void)deselectAll:(nullable id)sender;
- (NSInteger)rowAtPoint:(NSPoint)point;
- (NSRect)rectOfRow:(NSInteger)row;
- (void)scrollRowToVisible:(NSInteger)row;
- (NSInteger)columnWithIdentifier:(NSString *)identifier;
- (nullable __kindof NSView *)viewAtColumn:(NSInteger)column row:(NSInteger)row makeIfNecessary:(BOOL)make;
- (void)setDraggingSourceOperationMask:(NSDragOperation)mask forLocal:(BOOL)local;
@end

#pragma clang assume_nonnull end
