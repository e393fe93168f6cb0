#include "Recording.h"

#import <objc/runtime.h>

using namespace tarnwick::standins;

namespace {

NSString *textOf(DescType code) {
    const char letters[] = {static_cast<char>(code >> 24), static_cast<char>(code >> 16 & 0xff),
        static_cast<char>(code >> 8 & 0xff), static_cast<char>(code & 0xff)};
    return [[[NSString alloc] initWithBytes:letters length:4 encoding:NSASCIIStringEncoding] autorelease];
}

} // namespace

/// A descriptor that can say what it was made of.
@interface DescribedDescriptor : NSAppleEventDescriptor {
    NSMutableString *_description;
    StandInObject *_counted;
}
+ (DescribedDescriptor *)describedBy:(NSString *)text;
- (void)add:(NSString *)text;
@end

@implementation DescribedDescriptor

+ (DescribedDescriptor *)describedBy:(NSString *)text {
    DescribedDescriptor *descriptor = [[[DescribedDescriptor alloc] init] autorelease];
    [descriptor add:text];
    return descriptor;
}

- (instancetype)init {
    self = [super init];
    if (self) {
        _description = [[NSMutableString alloc] init];
        _counted = [[StandInObject alloc] init];
    }
    return self;
}

- (void)dealloc {
    [_description release];
    [_counted release];
    [super dealloc];
}

- (void)add:(NSString *)text {
    [_description appendString:text];
}

- (NSString *)description {
    return _description;
}

@end

@implementation NSAppleEventDescriptor

+ (NSAppleEventDescriptor *)descriptorWithDescriptorType:(DescType)type
                                                   bytes:(const void *)bytes
                                                  length:(NSUInteger)length {
    return [DescribedDescriptor describedBy:[NSString stringWithFormat:@"%@ %@", textOf(type),
                                                      [NSData dataWithBytes:bytes length:length]]];
}

+ (NSAppleEventDescriptor *)descriptorWithString:(NSString *)text {
    return [DescribedDescriptor describedBy:[NSString stringWithFormat:@"\"%@\"", text]];
}

+ (NSAppleEventDescriptor *)appleEventWithEventClass:(AEEventClass)eventClass
                                             eventID:(AEEventID)eventID
                                    targetDescriptor:(NSAppleEventDescriptor *)target
                                            returnID:(AEReturnID)returnID
                                       transactionID:(AETransactionID)transactionID {
    return [DescribedDescriptor
        describedBy:[NSString stringWithFormat:@"%@ %@ to (%@) return %d transaction %d", textOf(eventClass),
                              textOf(eventID), [target description], returnID, transactionID]];
}

- (void)setParamDescriptor:(NSAppleEventDescriptor *)descriptor forKeyword:(AEKeyword)keyword {
    [(DescribedDescriptor *)self
        add:[NSString stringWithFormat:@", %@ = %@", textOf(keyword), [descriptor description]]];
}

@end

@implementation NSUserScriptTask

- (instancetype)initWithURL:(NSURL *)url error:(NSError **)error {
    self = [super init];
    record(@"initWithURL(%@)", [url path]);
    if (self && !answers().scriptExists) {
        [self release];
        if (error) {
            *error = [NSError errorWithDomain:@"no such script" code:260 userInfo:nil];
        }
        return nil;
    }
    return self;
}

- (void)dealloc {
    record(@"task freed");
    [super dealloc];
}

@end

@implementation NSUserAppleScriptTask

- (void)executeWithAppleEvent:(NSAppleEventDescriptor *)event
            completionHandler:(NSUserAppleScriptTaskCompletionHandler)handler {
    record(@"executeWithAppleEvent(%@)", [event description]);
    if (handler) {
        runLater(^{
            record(@"completion with an error");
            handler(nil, [NSError errorWithDomain:@"script" code:1 userInfo:nil]);
        });
    }
}

@end
