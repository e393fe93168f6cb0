// Missing: notice of what other programs have written, as of GNUstep Base 1.28, which compares the second in
// which the folder of defaults was last changed with the time at which it last looked: of a change in the
// same second it never hears.

#import "gnustep/defaults/DefaultsFiles.h"
#import "gnustep/runtime/MethodReplacement.h"

#import <Foundation/Foundation.h>

#include <optional>
#include <sys/stat.h>

namespace {

std::optional<timespec> lastSeen;

/// Whether anything in the folder has been replaced since this was last asked.
BOOL wantToReadDefaults(id, SEL, NSDate *) {
    struct stat status;
    if (stat([TNDefaultsFolder() fileSystemRepresentation], &status) != 0) {
        lastSeen.reset();
        return YES;
    }
    const timespec now = status.st_mtim;
    const bool isSame = lastSeen && lastSeen->tv_sec == now.tv_sec && lastSeen->tv_nsec == now.tv_nsec;
    lastSeen = now;
    return isSame ? NO : YES;
}

} // namespace

@interface NSUserDefaults (TNReading)
@end

@implementation NSUserDefaults (TNReading)

+ (void)load {
    TNReplaceMethod(self, NSSelectorFromString(@"wantToReadDefaultsSince:"), wantToReadDefaults);
}

@end
