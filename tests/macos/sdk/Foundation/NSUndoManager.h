#pragma once

#import "NSNotifications.h"

#pragma clang assume_nonnull begin

extern "C" NSString *const NSUndoManagerDidUndoChangeNotification;
extern "C" NSString *const NSUndoManagerDidRedoChangeNotification;

@interface NSUndoManager : NSObject
@property BOOL groupsByEvent;
@property (readonly, getter=isUndoing) BOOL undoing;
@property (readonly, getter=isRedoing) BOOL redoing;
- (void)beginUndoGrouping;
- (void)endUndoGrouping;
- (void)registerUndoWithTarget:(id)target selector:(SEL)selector object:(nullable id)object;
- (void)removeAllActions;
- (void)removeAllActionsWithTarget:(id)target;
- (void)setActionName:(NSString *)name;
- (NSString *)undoMenuTitleForUndoActionName:(NSString *)name;
- (NSString *)redoMenuTitleForUndoActionName:(NSString *)name;
@end

#pragma clang assume_nonnull end
