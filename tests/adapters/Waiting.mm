#include "Waiting.h"

#import <AppKit/AppKit.h>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace tarnwick::testing {

bool runLoopUntil(const std::function<bool()> &condition) {
    constexpr NSTimeInterval patience = 10;
    NSDate *end = [NSDate dateWithTimeIntervalSinceNow:patience];
    while (!condition()) {
        if ([end timeIntervalSinceNow] < 0) {
            return false;
        }
        [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                 beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
    }
    return true;
}

bool isMainThread() {
    return [NSThread isMainThread];
}

std::string standardErrorOf(const std::function<void()> &work) {
    const auto path = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/stderr";
    std::fflush(stderr);
    const int kept = dup(STDERR_FILENO);
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(file, STDERR_FILENO);
    work();
    std::fflush(stderr);
    dup2(kept, STDERR_FILENO);
    close(kept);
    close(file);
    return contentsOfFile(path);
}

std::string contentsOfFile(const std::string &path) {
    std::ifstream stream(path);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string pictureOfSize(int width, int height) {
    NSBitmapImageRep *pixels = [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                                                        pixelsWide:width
                                                                        pixelsHigh:height
                                                                     bitsPerSample:8
                                                                   samplesPerPixel:4
                                                                          hasAlpha:YES
                                                                          isPlanar:NO
                                                                    colorSpaceName:NSCalibratedRGBColorSpace
                                                                       bytesPerRow:0
                                                                      bitsPerPixel:0] autorelease];
    NSData *png = [pixels representationUsingType:NSPNGFileType properties:[NSDictionary dictionary]];
    return {static_cast<const char *>([png bytes]), [png length]};
}

} // namespace tarnwick::testing
