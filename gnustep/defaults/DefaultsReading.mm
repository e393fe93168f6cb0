// Missing: notice of what other programs have written, as of GNUstep Base 1.28, which compares the second in
// which the folder of defaults was last changed with the time at which it last looked: of a change in the
// same second it never hears; nor that the system-wide settings have lost their last value, and with it their
// file.

#import "gnustep/defaults/DefaultsFiles.h"
#import "gnustep/runtime/MethodReplacement.h"

#import <Foundation/Foundation.h>

#include <optional>
#include <sys/stat.h>

@interface NSUserDefaults (TNReading)
/// Empties them if there is no file of them; whether that changed anything.
- (BOOL)tnReadMissingGlobalDomain;
@end

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

using ReadDefaults = BOOL (*)(id self, SEL command);

ReadDefaults nativeReadDefaults = nullptr;

BOOL readDefaults(id self, SEL command) {
    const BOOL isChanged = nativeReadDefaults(self, command);
    return [self tnReadMissingGlobalDomain] || isChanged ? YES : NO;
}

} // namespace

@implementation NSUserDefaults (TNReading)

+ (void)load {
    TNReplaceMethod(self, NSSelectorFromString(@"wantToReadDefaultsSince:"), wantToReadDefaults);
    nativeReadDefaults = TNReplaceMethod(self, NSSelectorFromString(@"_readDefaults"), readDefaults);
}

- (BOOL)tnReadMissingGlobalDomain {
    if ([[NSFileManager defaultManager] fileExistsAtPath:TNSettingsFileOf(NSGlobalDomain)]) {
        return NO;
    }
    // A domain of the toolkit's own class has the same method.
    NSUserDefaults *domain = [_persDomains objectForKey:NSGlobalDomain];
    return [domain synchronize];
}

@end
