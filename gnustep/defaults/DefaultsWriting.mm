// Missing: a plain word when the standard domain cannot be written, as of GNUstep Base 1.28, which says it in
// its own way at every attempt or not at all; and restraint: it replaces a file that this user may not open.
// What is not written stays in memory and is tried again.

#import "gnustep/defaults/DefaultsFiles.h"
#import "gnustep/runtime/MethodReplacement.h"

#import <Foundation/Foundation.h>

namespace {

using Synchronize = BOOL (*)(id self, SEL command);

Synchronize nativeSynchronize = nullptr;
bool isUnwritable = false;
/// The first call is that of the defaults themselves, which read all domains so; there is nothing to write
/// yet.
bool isRead = false;

BOOL synchronize(id self, SEL command) {
    NSString *path = TNSettingsFileOf([[NSProcessInfo processInfo] processName]);
    const BOOL written = (!isRead || !TNSettingsFileIsClosed(path)) && nativeSynchronize(self, command);
    isRead = true;
    if (!written && !isUnwritable) {
        NSLog(@"Settings file %@ cannot be written", path);
    }
    isUnwritable = !written;
    return written;
}

} // namespace

@interface NSUserDefaults (TNWriting)
@end

@implementation NSUserDefaults (TNWriting)

+ (void)load {
    nativeSynchronize = TNReplaceMethod(self, @selector(synchronize), synchronize);
}

@end
