#import "bench/app/LaunchMark.h"

@interface LaunchMark : NSObject {
@private
    void (*_work)();
}
- (instancetype)initWithWork:(void (*)())work;
- (void)finish:(id)unused;
@end

@implementation LaunchMark

- (instancetype)initWithWork:(void (*)())work {
    self = [super init];
    if (self) {
        _work = work;
    }
    return self;
}

- (void)finish:(id)unused {
    (void)unused;
    if (_work) {
        _work();
    }
    NSString *path = [[[NSProcessInfo processInfo] environment] objectForKey:@"TARNWICK_BENCH_UP"];
    [[NSData data] writeToFile:path atomically:NO];
}

@end

namespace tarnwick::bench {

void markWhenRunning(double delay, void (*work)()) {
    LaunchMark *mark = [[[LaunchMark alloc] initWithWork:work] autorelease];
    [mark performSelector:@selector(finish:) withObject:nil afterDelay:delay];
}

} // namespace tarnwick::bench
