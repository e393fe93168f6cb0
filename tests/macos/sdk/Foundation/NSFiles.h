#pragma once

#import "NSObject.h"

#pragma clang assume_nonnull begin

typedef TN_ENUM(NSUInteger, NSSearchPathDirectory){
    NSLibraryDirectory = 5, NSApplicationScriptsDirectory = 23};
typedef TN_OPTIONS(NSUInteger, NSSearchPathDomainMask){NSUserDomainMask = 1};

extern "C" {
NSArray<NSString *> *NSSearchPathForDirectoriesInDomains(
    NSSearchPathDirectory directory, NSSearchPathDomainMask domains, BOOL expandTilde);
NSString *NSUserName(void);
NSString *NSTemporaryDirectory(void);
}

@interface NSURL : NSObject <NSCopying>
@property (nullable, readonly, copy) NSString *path;
+ (NSURL *)fileURLWithPath:(NSString *)path;
+ (nullable instancetype)URLWithString:(NSString *)text;
@end

@interface NSFileManager : NSObject
@property (class, readonly, strong) NSFileManager *defaultManager;
- (BOOL)fileExistsAtPath:(NSString *)path;
- (BOOL)fileExistsAtPath:(NSString *)path isDirectory:(nullable BOOL *)isDirectory;
- (nullable NSArray<NSString *> *)contentsOfDirectoryAtPath:(NSString *)path
                                                      error:(NSError *_Nullable *_Nullable)error;
- (BOOL)removeItemAtPath:(NSString *)path error:(NSError *_Nullable *_Nullable)error;
- (BOOL)copyItemAtPath:(NSString *)from toPath:(NSString *)to error:(NSError *_Nullable *_Nullable)error;
- (BOOL)moveItemAtPath:(NSString *)from toPath:(NSString *)to error:(NSError *_Nullable *_Nullable)error;
- (BOOL)createDirectoryAtPath:(NSString *)path
    withIntermediateDirectories:(BOOL)intermediate
                     attributes:(nullable NSDictionary<NSString *, id> *)attributes
                          error:(NSError *_Nullable *_Nullable)error;
- (nullable NSURL *)URLForDirectory:(NSSearchPathDirectory)directory
                           inDomain:(NSSearchPathDomainMask)domain
                  appropriateForURL:(nullable NSURL *)url
                             create:(BOOL)create
                              error:(NSError *_Nullable *_Nullable)error;
- (nullable NSURL *)containerURLForSecurityApplicationGroupIdentifier:(NSString *)identifier;
@end

#pragma clang assume_nonnull end
