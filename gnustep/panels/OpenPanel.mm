// Wrong: what an open panel takes, as of GNUstep GUI 0.29. The full path of a file cannot be confirmed,
// `Red.PNG` is no file of the type "png", the name of the folder that is shown stands in the field where
// somebody begins to type, the button of the user's home leaves a typed path there that counts, a double
// click on a folder takes it (and saves there), and extensions that are to be hidden are shown.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

/// What the panel has of its own, without saying so.
@interface NSSavePanel (TNPrivateMethods)
- (void)_updateDefaultDirectory;
- (void)_setHomeDirectory;
- (void)_doubleClick:(id)sender;
- (BOOL)_shouldShowExtension:(NSString *)extension;
@end

@interface NSOpenPanel (TNTypedPaths)
- (void)tnEmptyNameField;
/// Nothing that was typed counts any longer.
- (void)tnForgetTyped;
/// A typed text as the path of something that may be chosen; nil when it is none.
- (NSString *)tnChoosablePath:(NSString *)typed;
/// Shows what a typed path leads to; NO when the text is not the path of something that may be chosen.
- (BOOL)tnShowPath:(NSString *)typed;
- (void)tnEndWithPath:(NSString *)path;
@end

namespace {

using SetUp = void (*)(id self, SEL command, NSString *path, NSString *name);
using TextChanged = void (*)(id self, SEL command, NSNotification *notification);
using Confirm = void (*)(id self, SEL command, id sender);
using GoHome = void (*)(id self, SEL command);
using FileNames = NSArray *(*)(id self, SEL command);
SetUp nativeSetUp = nullptr;
TextChanged nativeTextChanged = nullptr;
Confirm nativeConfirm = nullptr;
Confirm nativeDoubleClick = nullptr;
GoHome nativeGoHome = nullptr;
FileNames nativeFileNames = nullptr;

/// What was confirmed as a path that had been typed; nil when something was chosen from the list. There is
/// one open panel.
NSString *confirmedPath = nil;

void confirmPath(NSString *path) {
    [confirmedPath autorelease];
    confirmedPath = [path copy];
}

void setUp(id self, SEL command, NSString *path, NSString *name) {
    confirmPath(nil);
    nativeSetUp(self, command, path, name);
    if ([name length] == 0) {
        [self tnEmptyNameField];
    }
}

void textChanged(id self, SEL command, NSNotification *notification) {
    NSString *typed = [[[notification userInfo] objectForKey:@"NSFieldEditor"] string];
    if (![self tnShowPath:typed]) {
        nativeTextChanged(self, command, notification);
    }
}

void confirm(id self, SEL command, id sender) {
    NSString *path = [self tnChoosablePath:[self nameFieldStringValue]];
    if (path) {
        confirmPath(path);
        [self tnEndWithPath:path];
    } else {
        nativeConfirm(self, command, sender);
    }
}

/// What is in a folder is shown since the first click.
void doubleClick(id self, SEL command, id browser) {
    if ([[browser selectedCell] isLeaf]) {
        nativeDoubleClick(self, command, browser);
    }
}

void goHome(id self, SEL command) {
    nativeGoHome(self, command);
    if ([self isKindOfClass:[NSOpenPanel class]]) {
        [self tnForgetTyped];
    }
}

NSArray *fileNames(id self, SEL command) {
    return confirmedPath ? [NSArray arrayWithObject:confirmedPath] : nativeFileNames(self, command);
}

BOOL showsExtension(id self, SEL, NSString *extension) {
    if (![self canChooseFiles]) {
        return NO;
    }
    NSArray *types = [self allowedFileTypes];
    for (NSString *type in types) {
        if ([type caseInsensitiveCompare:extension] == NSOrderedSame) {
            return YES;
        }
    }
    return !types;
}

} // namespace

@implementation NSOpenPanel (TNTypedPaths)

+ (void)load {
    nativeSetUp = TNReplaceMethod(self, @selector(_setupForDirectory:file:), setUp);
    nativeTextChanged = TNReplaceMethod(self, @selector(controlTextDidChange:), textChanged);
    nativeConfirm = TNReplaceMethod(self, @selector(ok:), confirm);
    nativeFileNames = TNReplaceMethod(self, @selector(filenames), fileNames);
    TNReplaceMethod(self, @selector(_shouldShowExtension:), showsExtension);
}

- (void)tnEmptyNameField {
    [_form abortEditing];
    [[_form cellAtIndex:0] setStringValue:@""];
    [_form selectTextAtIndex:0];
}

- (void)tnForgetTyped {
    [self tnEmptyNameField];
    [_okButton setEnabled:[self canChooseDirectories]];
}

- (NSString *)tnChoosablePath:(NSString *)typed {
    if (![typed isAbsolutePath]) {
        return nil;
    }
    NSString *path = [typed stringByExpandingTildeInPath];
    BOOL isFolder = NO;
    if (![[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&isFolder]) {
        return nil;
    }
    const bool isFile = !isFolder || [[NSWorkspace sharedWorkspace] isFilePackageAtPath:path];
    const bool mayBeChosen =
        isFile ? [self _shouldShowExtension:[path pathExtension]] : [self canChooseDirectories];
    return mayBeChosen ? path : nil;
}

- (BOOL)tnShowPath:(NSString *)typed {
    NSString *path = [self tnChoosablePath:typed];
    if (!path) {
        return NO;
    }
    [_browser setPath:path];
    [_okButton setEnabled:YES];
    return YES;
}

- (void)tnEndWithPath:(NSString *)path {
    [_directory autorelease];
    _directory = [[path stringByDeletingLastPathComponent] copy];
    [self _updateDefaultDirectory];
    [NSApp stopModalWithCode:NSModalResponseOK];
    [_okButton setEnabled:NO];
    [self close];
}

@end

@interface NSSavePanel (TNWaysThroughFolders)
@end

@implementation NSSavePanel (TNWaysThroughFolders)

+ (void)load {
    nativeDoubleClick = TNReplaceMethod(self, @selector(_doubleClick:), doubleClick);
    nativeGoHome = TNReplaceMethod(self, @selector(_setHomeDirectory), goHome);
}

@end
