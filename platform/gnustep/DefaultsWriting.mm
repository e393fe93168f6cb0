// Missing: a plain word when the standard domain cannot be written, as of GNUstep Base 1.28, which says it in
// its own way at every attempt or not at all. What is not written stays in memory and is tried again.

#import "DefaultsFiles.h"
#import "MethodReplacement.h"

#import <Foundation/Foundation.h>

namespace {

using Synchronize = BOOL (*)(id self, SEL command);

Synchronize nativeSynchronize = nullptr;
bool isUnwritable = false;

BOOL synchronize(id self, SEL command) {
    const BOOL written = nativeSynchronize(self, command);
    if (!written && !isUnwritable) {
        NSString *name = [[[NSProcessInfo processInfo] processName] stringByAppendingPathExtension:@"plist"];
        NSLog(
            @"Settings file %@ cannot be written", [TNDefaultsFolder() stringByAppendingPathComponent:name]);
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
