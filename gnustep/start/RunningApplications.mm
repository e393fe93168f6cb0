// Missing: the list of running applications, as of GNUstep GUI 0.29, which gives nil for it. Nothing on this
// platform knows bundle identifiers of other programs, so the list is empty.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

NSArray *noApplications(id, SEL, NSString *) {
    return [NSArray array];
}

} // namespace

@interface NSRunningApplication (TNRunningApplications)
@end

@implementation NSRunningApplication (TNRunningApplications)

+ (void)load {
    TNReplaceMethod(
        object_getClass(self), @selector(runningApplicationsWithBundleIdentifier:), noApplications);
}

@end
