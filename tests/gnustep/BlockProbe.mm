#include "Probe.h"

#import <Foundation/Foundation.h>

@interface TNLifeWitness : NSObject {
@private
    bool *_freed;
}

- (instancetype)initWithFlag:(bool *)freed;
- (int)answer;

@end

@implementation TNLifeWitness

- (instancetype)initWithFlag:(bool *)freed {
    self = [super init];
    if (self) {
        _freed = freed;
    }
    return self;
}

- (void)dealloc {
    *_freed = true;
    [super dealloc];
}

- (int)answer {
    return 42;
}

@end

namespace tarnwick::probe {

CaptureResult captureInCopiedBlock() {
    CaptureResult result;
    bool freed = false;
    TNLifeWitness *witness = [[TNLifeWitness alloc] initWithFlag:&freed];
    int (^block)(void) = [^{
        return [witness answer];
    } copy];
    [witness release];
    result.aliveWhileBlockLives = !freed && block() == 42;
    [block release];
    result.freedWithBlock = freed;
    return result;
}

int sumInBlockVariable(int times) {
    __block int sum = 0;
    void (^add)(void) = [^{
        ++sum;
    } copy];
    for (int time = 0; time < times; ++time) {
        add();
    }
    [add release];
    return sum;
}

static NSArray *storedBlocks(int count) {
    NSMutableArray *blocks = [NSMutableArray array];
    for (int number = 0; number < count; ++number) {
        [blocks addObject:[[^{
            return number * number;
        } copy] autorelease]];
    }
    return blocks;
}

std::vector<int> resultsOfStoredBlocks(int count) {
    std::vector<int> results;
    @autoreleasepool {
        for (int (^block)(void) in storedBlocks(count)) {
            results.push_back(block());
        }
    }
    return results;
}

} // namespace tarnwick::probe
