#pragma once

#import <AppKit/NSResponder.h>

#pragma clang assume_nonnull begin

extern "C" NSString *const NSStringPboardType TN_DEPRECATED(10.0, 10.14);
extern "C" NSString *const NSFilenamesPboardType TN_DEPRECATED(10.0, 10.14);

@interface NSPasteboard : NSObject
@property (nullable, readonly, copy) NSArray<NSString *> *types;
- (NSInteger)declareTypes:(NSArray<NSString *> *)types owner:(nullable id)owner;
- (BOOL)setData:(nullable NSData *)data forType:(NSString *)type;
- (nullable NSData *)dataForType:(NSString *)type;
- (nullable id)propertyListForType:(NSString *)type;
@end

typedef TN_OPTIONS(NSUInteger, NSDragOperation){

    NSDragOperationNone = 0,
    NSDragOperationCopy = 1,
    NSDragOperationLink = 2,
    NSDragOperationGeneric = 4,
    NSDragOperationMove = 16,
};

@protocol NSDraggingInfo <NSObject>
@property (readonly, strong) NSPasteboard *draggingPasteboard;
@property (nullable, readonly, strong) id draggingSource;
@property (readonly) NSDragOperation draggingSourceOperationMask;
@end

@protocol NSDraggingDestination <NSObject>
@optional
- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)sender;
- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)sender;
- (void)draggingExited:(nullable id<NSDraggingInfo>)sender;
- (void)draggingEnded:(id<NSDraggingInfo>)sender;
- (BOOL)prepareForDragOperation:(id<NSDraggingInfo>)sender;
- (BOOL)performDragOperation:(id<NSDraggingInfo>)sender;
- (void)concludeDragOperation:(nullable id<NSDraggingInfo>)sender;
@end

#pragma clang assume_nonnull end
