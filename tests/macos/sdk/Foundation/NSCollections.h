#pragma once

#import "NSObject.h"
#import "NSRange.h"

#pragma clang assume_nonnull begin

typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable *_Nullable itemsPtr;
    unsigned long *_Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)count;
@end

@interface NSArray<ObjectType> : NSObject <NSCopying, NSFastEnumeration>
@property (readonly) NSUInteger count;
- (ObjectType)objectAtIndex:(NSUInteger)index;
@property (nullable, readonly) ObjectType firstObject;
- (BOOL)containsObject:(ObjectType)object;
+ (instancetype)array;
+ (instancetype)arrayWithObject:(ObjectType)object;
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects count:(NSUInteger)count;
+ (instancetype)arrayWithObjects:(ObjectType)first, ... __attribute__((sentinel(0, 1)));
- (instancetype)initWithObjects:(const ObjectType _Nonnull[_Nullable])objects count:(NSUInteger)count;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
- (void)addObject:(ObjectType)object;
@end

@interface NSDictionary<KeyType, ObjectType> : NSObject <NSCopying, NSFastEnumeration>
@property (readonly) NSUInteger count;
- (nullable ObjectType)objectForKey:(KeyType)key;
- (instancetype)initWithObjects:(const ObjectType _Nonnull[_Nullable])objects
                        forKeys:(const id<NSCopying> _Nonnull[_Nullable])keys
                          count:(NSUInteger)count;
+ (instancetype)dictionaryWithObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
+ (instancetype)dictionaryWithObjectsAndKeys:(id)first, ... __attribute__((sentinel(0, 1)));
@end

@interface NSMutableDictionary<KeyType, ObjectType> : NSDictionary <KeyType, ObjectType>
- (void)setObject:(ObjectType)object forKey:(KeyType)key;
@end

@interface NSIndexSet : NSObject <NSCopying>
@property (readonly) NSUInteger count;
@property (readonly) NSUInteger firstIndex;
+ (instancetype)indexSetWithIndex:(NSUInteger)index;
@end

#pragma clang assume_nonnull end
