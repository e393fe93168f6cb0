// The floor of a launch: an empty window, and the files that a first launch copies. Its arguments are the
// file to make once the window stands and the run loop runs, and a file of lines "from TAB to" of what to
// copy.

#import <AppKit/AppKit.h>

#ifdef TARNWICK_BENCH_WITH_LAYER
#import "gnustep/include/TNStartUp.h"
#endif

namespace {

void copyFiles(NSString *listFile) {
    NSFileManager *files = [NSFileManager defaultManager];
    NSString *list = [NSString stringWithContentsOfFile:listFile];
    for (NSString *line in [list componentsSeparatedByString:@"\n"]) {
        NSArray *pair = [line componentsSeparatedByString:@"\t"];
        if ([pair count] != 2) {
            continue;
        }
        NSString *target = [pair objectAtIndex:1];
        [files createDirectoryAtPath:[target stringByDeletingLastPathComponent]
            withIntermediateDirectories:YES
                             attributes:nil
                                  error:nullptr];
        [files copyItemAtPath:[pair objectAtIndex:0] toPath:target error:nullptr];
    }
}

} // namespace

@interface EmptyWindowDelegate : NSObject
- (void)finish:(id)unused;
@end

@implementation EmptyWindowDelegate

- (void)finish:(id)unused {
    (void)unused;
    NSDictionary *environment = [[NSProcessInfo processInfo] environment];
    copyFiles([environment objectForKey:@"TARNWICK_BENCH_COPIES"]);
    [[NSData data] writeToFile:[environment objectForKey:@"TARNWICK_BENCH_UP"] atomically:NO];
}

@end

int main() {
    @autoreleasepool {
#ifdef TARNWICK_BENCH_WITH_LAYER
        TNPrepareProcess({.identifier = @"org.halvane.Tarnwick"});
#endif
        [NSApplication sharedApplication];
        NSWindow *window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 800, 500)
                                                       styleMask:NSWindowStyleMaskTitled
                                                         backing:NSBackingStoreBuffered
                                                           defer:NO];
        [window makeKeyAndOrderFront:nil];
        EmptyWindowDelegate *delegate = [[EmptyWindowDelegate alloc] init];
        [delegate performSelector:@selector(finish:) withObject:nil afterDelay:0];
        [NSApp run];
    }
}
