// Wrong: what a save panel takes for a name, as of GNUstep GUI 0.29: the path of a folder, which gets the
// extension and is saved beside that folder. Here it leads into the folder.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

@interface NSSavePanel (TNTypedFolders)
/// Shows a folder whose path was typed, with the name that the panel began with; NO for any other text.
- (BOOL)tnShowTypedFolder;
@end

namespace {

using SetUp = void (*)(id self, SEL command, NSString *path, NSString *name);
using Confirm = void (*)(id self, SEL command, id sender);
SetUp nativeSetUp = nullptr;
Confirm nativeConfirm = nullptr;

/// What the panel begins with. There is one save panel.
NSString *proposedName = nil;

void setUp(id self, SEL command, NSString *path, NSString *name) {
    [proposedName autorelease];
    proposedName = [name copy];
    nativeSetUp(self, command, path, name);
}

void confirm(id self, SEL command, id sender) {
    if (![self tnShowTypedFolder]) {
        nativeConfirm(self, command, sender);
    }
}

bool isFolder(NSString *path) {
    BOOL isDirectory = NO;
    return [path isAbsolutePath] &&
           [[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&isDirectory] && isDirectory &&
           ![[NSWorkspace sharedWorkspace] isFilePackageAtPath:path];
}

} // namespace

@implementation NSSavePanel (TNTypedFolders)

+ (void)load {
    nativeSetUp = TNReplaceMethod(self, @selector(_setupForDirectory:file:), setUp);
    nativeConfirm = TNReplaceMethod(self, @selector(ok:), confirm);
}

- (BOOL)tnShowTypedFolder {
    NSString *path = [[self nameFieldStringValue] stringByExpandingTildeInPath];
    if (!isFolder(path)) {
        return NO;
    }
    [self setDirectory:path];
    [self setNameFieldStringValue:proposedName ? proposedName : @""];
    [_form selectTextAtIndex:0];
    return YES;
}

@end
