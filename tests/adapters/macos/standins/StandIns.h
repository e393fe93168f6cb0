// Seen first by every source of these tests: GNUstep's own classes that are empty or missing here get out of
// the way of the stand-ins, which bear the names that the sources use.
#pragma once

#ifdef __OBJC__
#import "Compat.h"
#import <AppKit/AppKit.h>

#define NSAppleEventDescriptor StandInAppleEventDescriptor
#define NSUserScriptTask StandInUserScriptTask
#define NSUserAppleScriptTask StandInUserAppleScriptTask
#define NSDistributedNotificationCenter StandInDistributedNotificationCenter
#define NSProcessInfo StandInProcessInfo
#define NSWorkspace StandInWorkspace
#define NSImage StandInImage

#import <CoreFoundation/CoreFoundation.h>
#import <CoreServices/CoreServices.h>
#import <FinderSync/FinderSync.h>
#import <dispatch/dispatch.h>

#import <Scripting/NSScripting.h>

typedef struct CGImage *CGImageRef;
@class NSGraphicsContext, NSOperationQueue;

/// An object that counts itself while it lives.
@interface StandInObject : NSObject
@end

/// An element of the session's list.
@interface StandInLoginItem : StandInObject {
    NSURL *_url;
}
- (instancetype)initWithURL:(NSURL *)url;
- (NSURL *)url;
@end

@interface StandInDistributedNotificationCenter : NSObject
+ (StandInDistributedNotificationCenter *)defaultCenter;
- (id)addObserverForName:(NSString *)name
                  object:(id)object
                   queue:(NSOperationQueue *)queue
              usingBlock:(void (^)(NSNotification *notification))block;
@end

@interface NSUserDefaults (StandIn)
- (BOOL)objectIsForcedForKey:(NSString *)key;
@end

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface StandInProcessInfo : NSObject
+ (StandInProcessInfo *)processInfo;
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version;
@end

@interface StandInImage : StandInObject {
    NSSize _size;
    NSString *_origin;
}
- (instancetype)initWithData:(NSData *)data;
- (instancetype)initWithCGImage:(CGImageRef)image size:(NSSize)size;
- (CGImageRef)CGImageForProposedRect:(NSRect *)rect
                             context:(NSGraphicsContext *)context
                               hints:(NSDictionary *)hints;
- (NSSize)size;
- (NSString *)origin;
@end

@interface StandInWorkspace : NSObject
+ (StandInWorkspace *)sharedWorkspace;
- (StandInImage *)iconForFile:(NSString *)path;
@end

namespace tarnwick::standins {
void record(NSString *format, ...) __attribute__((format(__NSString__, 1, 2)));
/// The system's own work, for drainQueues() to run.
void runLater(dispatch_block_t work);
} // namespace tarnwick::standins
#endif
