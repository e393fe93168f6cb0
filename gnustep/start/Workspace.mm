// Missing: opening in other applications and news of them, as of GNUstep GUI 0.29, whose NSWorkspace shows a
// modal panel for a web address, opens nothing else, shows no file in its folder, and never tells of
// activations.

#import "gnustep/start/Workspace.h"

#import "TNConstants.h"

#import "gnustep/runtime/MethodReplacement.h"

#include <cstdlib>

NSString *const NSWorkspaceDidActivateApplicationNotification =
    @"NSWorkspaceDidActivateApplicationNotification";
NSString *const NSWorkspaceDidDeactivateApplicationNotification =
    @"NSWorkspaceDidDeactivateApplicationNotification";

namespace {

NSString *opener = @"/usr/bin/xdg-open";

/// Whether the program could be started; it is not waited for. `what` is for the message if not.
BOOL launch(NSString *program, NSArray *arguments, NSString *what) {
    NSMutableDictionary *environment =
        [NSMutableDictionary dictionaryWithDictionary:[[NSProcessInfo processInfo] environment]];
    if (const char *path = std::getenv("PATH")) {
        // As it is now, not as it was at the start.
        [environment setObject:[NSString stringWithUTF8String:path] forKey:@"PATH"];
    }
    NSTask *task = [[[NSTask alloc] init] autorelease];
    [task setLaunchPath:program];
    [task setArguments:arguments];
    [task setEnvironment:environment];
    @try {
        [task launch];
        return YES;
    } @catch (NSException *exception) {
        NSLog(@"%@ could not be opened: %@", what, [exception reason]);
        return NO;
    }
}

BOOL openInOpener(NSString *argument) {
    return launch(opener, [NSArray arrayWithObject:argument], argument);
}

BOOL openURL(id, SEL, NSURL *address) {
    return address && openInOpener([address absoluteString]);
}

BOOL openFile(id, SEL, NSString *path) {
    return path && openInOpener(path);
}

/// Asks the desktop's file manager, by the name that all of them answer to, for the file with the address $1.
/// Where nobody answers, the folder $3 is opened by the program $2.
NSString *const showingScript = @"dbus-send --session --print-reply --dest=org.freedesktop.FileManager1 "
                                @"/org/freedesktop/FileManager1 org.freedesktop.FileManager1.ShowItems "
                                @"\"array:string:$1\" string: >/dev/null 2>&1 || exec \"$2\" \"$3\"";

BOOL selectFile(id, SEL, NSString *path, NSString *) {
    if (!path) {
        return NO;
    }
    // A comma would end the address, of which there may be several.
    NSString *address =
        [[[NSURL fileURLWithPath:path] absoluteString] stringByReplacingOccurrencesOfString:@","
                                                                                 withString:@"%2C"];
    NSString *folder = [path stringByDeletingLastPathComponent];
    return launch(@"/bin/sh",
        [NSArray arrayWithObjects:@"-c", showingScript, @"sh", address, opener, folder, nil], path);
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
    TNReplaceMethod(self, @selector(selectFile:inFileViewerRootedAtPath:), selectFile);
}

@end
