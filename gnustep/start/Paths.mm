// Wrong: paths with a backslash or a colon, as of GNUstep Base 1.28, which takes both for marks of another
// system's paths and so finds no file whose name has one. Here names are as on macOS, where they may have
// either.

#import "gnustep/start/Paths.h"

#import <Foundation/Foundation.h>

/// The library has it, and no header of Debian's.
extern "C" const char *GSPathHandling(const char *mode);

void TNUseUnixPaths() {
    GSPathHandling("unix");
}
