// Unwanted: ImageMagick, which GNUstep GUI 0.29 offers every picture to. Its 125 readers, each a library of
// its own, are loaded when a program asks for its first image; then an image is looked for in every folder
// under the 250 names that the readers know; and pictures from outside may reach any of them. Bitmaps are
// read without it.

#import "gnustep/theme/ImageReaders.h"
#import "gnustep/runtime/MethodReplacement.h"

#import <AppKit/AppKit.h>

@interface NSImageRep (TNReaders)
@end

namespace {

void stayUnloaded(id, SEL) {}

} // namespace

@implementation NSImageRep (TNReaders)

+ (void)load {
    // Without a message to the class, whose first one loads the readers.
    TNReplaceMethod(
        object_getClass(objc_getClass("GSImageMagickImageRep")), @selector(initialize), stayUnloaded);
}

@end

void TNUseBitmapReadersOnly() {
    for (Class reader in [[[NSImageRep registeredImageRepClasses] copy] autorelease]) {
        if (reader != [NSBitmapImageRep class]) {
            [NSImageRep unregisterImageRepClass:reader];
        }
    }
}
