// Wrong: what a save panel takes for a name, as of GNUstep GUI 0.29: the path of a folder, which gets the
// extension and is saved beside that folder. Here it leads into the folder. And a folder that is not there is
// saved into although nobody wants it to be made.

#import <AppKit/AppKit.h>

#import "gnustep/panels/PanelLanguages.h"
#import "gnustep/runtime/MethodReplacement.h"

@interface NSSavePanel (TNTypedFolders)
/// Shows a folder whose path was typed, with the name that the panel began with; NO for any other text.
- (BOOL)tnShowTypedFolder;
/// The folder that the typed name is to be saved in.
- (NSString *)tnFolderToSaveIn;
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

/// Whether the folder is there, made now if the user wants that.
bool makeFolder(NSString *folder) {
    NSFileManager *files = [NSFileManager defaultManager];
    if ([files fileExistsAtPath:folder]) {
        return true;
    }
    if (NSRunAlertPanel(TNPanelText(@"Save"),
            TNPanelText(@"The directory '%@' does not exist, do you want to create it?"), TNPanelText(@"Yes"),
            TNPanelText(@"No"), nil, folder) != NSAlertDefaultReturn) {
        return false;
    }
    if (![files createDirectoryAtPath:folder withIntermediateDirectories:YES attributes:nil error:nullptr]) {
        NSRunAlertPanel(TNPanelText(@"Save"), TNPanelText(@"The directory '%@' could not be created."),
            TNPanelText(@"Dismiss"), nil, nil, folder);
        return false;
    }
    return true;
}

void confirm(id self, SEL command, id sender) {
    if (![self tnShowTypedFolder] && makeFolder([self tnFolderToSaveIn])) {
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

- (NSString *)tnFolderToSaveIn {
    NSString *name = [[self nameFieldStringValue] stringByExpandingTildeInPath];
    NSString *path = [name isAbsolutePath] ? name
                                           : [[_browser pathToColumn:[_browser lastColumn]]
                                                 stringByAppendingPathComponent:name];
    return [path stringByDeletingLastPathComponent];
}

@end
