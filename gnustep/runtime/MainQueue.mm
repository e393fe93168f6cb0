// Missing: a main queue that runs on the main thread, as of GNUstep Base 1.28: there `addOperationWithBlock:`
// of the main queue runs on a worker.

#import "TNMainQueue.h"

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

/// Performs a block once.
@interface TNBlockPerformer : NSObject {
@private
    void (^_block)(void);
}

- (instancetype)initWithBlock:(void (^)(void))block;
- (void)perform;

@end

@implementation TNBlockPerformer

- (instancetype)initWithBlock:(void (^)(void))block {
    self = [super init];
    if (self) {
        _block = Block_copy(block);
    }
    return self;
}

- (void)dealloc {
    Block_release(_block);
    [super dealloc];
}

- (void)perform {
    _block();
}

@end

void TNOnMain(void (^block)(void)) {
    TNBlockPerformer *performer = [[[TNBlockPerformer alloc] initWithBlock:block] autorelease];
    NSArray *modes = [NSArray
        arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode, nil];
    // The performer is retained until it has run.
    [performer performSelectorOnMainThread:@selector(perform) withObject:nil waitUntilDone:NO modes:modes];
}

namespace {

using AddOperationWithBlock = void (*)(id self, SEL command, void (^block)(void));
AddOperationWithBlock nativeAddOperation = nullptr;

void addOperation(id self, SEL command, void (^block)(void)) {
    if (self == [NSOperationQueue mainQueue]) {
        TNOnMain(block);
    } else {
        nativeAddOperation(self, command, block);
    }
}

} // namespace

@interface NSOperationQueue (TNMainQueue)
@end

@implementation NSOperationQueue (TNMainQueue)

+ (void)load {
    nativeAddOperation = TNReplaceMethod(self, @selector(addOperationWithBlock:), addOperation);
}

@end
