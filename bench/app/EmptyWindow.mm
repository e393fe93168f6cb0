// The floor of a launch: an empty window, and the files that a first launch copies: the lines "from TAB to"
// of the file that TARNWICK_BENCH_COPIES names.

#import "bench/app/LaunchMark.h"

#import <AppKit/AppKit.h>

#ifdef TARNWICK_BENCH_WITH_LAYER
#import "gnustep/include/TNStartUp.h"
#endif

namespace {

void copyFiles() {
    NSFileManager *files = [NSFileManager defaultManager];
    NSString *listFile = [[[NSProcessInfo processInfo] environment] objectForKey:@"TARNWICK_BENCH_COPIES"];
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
        tarnwick::bench::markWhenRunning(0, copyFiles);
        [NSApp run];
    }
}
