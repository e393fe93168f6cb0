#include "WorkspaceProbe.h"

#import <AppKit/AppKit.h>

#import "gnustep/start/Workspace.h"

namespace tarnwick::probe {
namespace {

NSString *stringOf(const std::string &text) {
    return [NSString stringWithUTF8String:text.c_str()];
}

} // namespace

void useOpener(const std::string &path) {
    @autoreleasepool {
        TNUseOpener(stringOf(path));
    }
}

bool openFile(const std::string &path) {
    @autoreleasepool {
        return [[NSWorkspace sharedWorkspace] openFile:stringOf(path)];
    }
}

bool showInFileManager(const std::string &path) {
    @autoreleasepool {
        return [[NSWorkspace sharedWorkspace] selectFile:stringOf(path) inFileViewerRootedAtPath:@""];
    }
}

} // namespace tarnwick::probe
