// Missing: group containers and the folder of application scripts, as of GNUstep Base 1.28.

#import <Foundation/Foundation.h>

#import "TNConstants.h"
#import "gnustep/runtime/MethodReplacement.h"

namespace {

NSString *userLibrary() {
    return [NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES) objectAtIndex:0];
}

NSURL *folder(NSString *path, BOOL create, NSError **error) {
    if (create && ![[NSFileManager defaultManager] createDirectoryAtPath:path
                                             withIntermediateDirectories:YES
                                                              attributes:nil
                                                                   error:error]) {
        return nil;
    }
    return [NSURL fileURLWithPath:path isDirectory:YES];
}

using URLForDirectory = NSURL *(*)(id self, SEL command, NSSearchPathDirectory directory,
    NSSearchPathDomainMask domain, NSURL *place, BOOL create, NSError **error);
URLForDirectory nativeURLForDirectory = nullptr;

NSURL *urlForDirectory(id self, SEL command, NSSearchPathDirectory directory, NSSearchPathDomainMask domain,
    NSURL *place, BOOL create, NSError **error) {
    if (directory != NSApplicationScriptsDirectory) {
        return nativeURLForDirectory(self, command, directory, domain, place, create, error);
    }
    NSString *scripts = [userLibrary() stringByAppendingPathComponent:@"Application Scripts"];
    return folder(
        [scripts stringByAppendingPathComponent:[[NSProcessInfo processInfo] processName]], create, error);
}

} // namespace

@interface NSFileManager (TNFolderLocations)
@end

@implementation NSFileManager (TNFolderLocations)

+ (void)load {
    nativeURLForDirectory = TNReplaceMethod(
        self, @selector(URLForDirectory:inDomain:appropriateForURL:create:error:), urlForDirectory);
}

- (NSURL *)containerURLForSecurityApplicationGroupIdentifier:(NSString *)identifier {
    if ([identifier length] == 0 || [identifier rangeOfString:@"/"].location != NSNotFound) {
        return nil;
    }
    NSString *containers = [userLibrary() stringByAppendingPathComponent:@"Group Containers"];
    return folder([containers stringByAppendingPathComponent:identifier], YES, nullptr);
}

@end
