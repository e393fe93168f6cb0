#pragma once

#import "NSObject.h"

#pragma clang assume_nonnull begin

@class NSData;

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo : NSObject
@property (class, readonly, strong) NSProcessInfo *processInfo;
@property (readonly) int processIdentifier;
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version TN_SINCE(10.10);
@end

@interface NSFileHandle : NSObject
- (NSData *)readDataToEndOfFile;
@end

@interface NSPipe : NSObject
@property (readonly, retain) NSFileHandle *fileHandleForReading;
+ (NSPipe *)pipe;
@end

@interface NSTask : NSObject
@property (nullable, copy) NSString *launchPath;
@property (nullable, copy) NSArray<NSString *> *arguments;
@property (nullable, retain) id standardOutput;
- (void)launch;
@end

#pragma clang assume_nonnull end
