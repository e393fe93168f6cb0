// Missing: opening in other applications and news of them, as of GNUstep GUI 0.29, whose NSWorkspace shows a
// modal panel for a web address, opens nothing else, and never tells of activations.

#import "gnustep/start/Workspace.h"

#import "TNConstants.h"

#import "gnustep/runtime/MethodReplacement.h"

NSString *const NSWorkspaceDidActivateApplicationNotification =
    @"NSWorkspaceDidActivateApplicationNotification";
NSString *const NSWorkspaceDidDeactivateApplicationNotification =
    @"NSWorkspaceDidDeactivateApplicationNotification";

namespace {

NSString *opener = @"/usr/bin/xdg-open";

/// Whether the opener could be started; it is not waited for.
BOOL openInOpener(NSString *argument) {
    @try {
        [NSTask launchedTaskWithLaunchPath:opener arguments:[NSArray arrayWithObject:argument]];
        return YES;
    } @catch (NSException *exception) {
        NSLog(@"%@ could not be opened: %@", argument, [exception reason]);
        return NO;
    }
}

BOOL openURL(id, SEL, NSURL *address) {
    return address && openInOpener([address absoluteString]);
}

BOOL openFile(id, SEL, NSString *path) {
    return path && openInOpener(path);
}

} // namespace

void TNUseOpener(NSString *path) {
    if (path) {
        // For the life of the process.
        opener = [path copy];
    }
}

@interface NSWorkspace (TNOpening)
@end

@implementation NSWorkspace (TNOpening)

+ (void)load {
    TNReplaceMethod(self, @selector(openURL:), openURL);
    TNReplaceMethod(self, @selector(openFile:), openFile);
}

@end
