#import "adapters/foundation/ImageConversion.h"

#include "adapters/linux/PictureHeader.h"

namespace tarnwick {

NSImage *iconOfFileAtPath(NSString *path) {
    return [[NSWorkspace sharedWorkspace] iconForFile:path];
}

/// Sound bitmaps alone: some of the toolkit's readers of images end the program over damaged ones.
NSImage *newImageWithData(NSData *data) {
    if (!mayBePicture(static_cast<const std::uint8_t *>([data bytes]), [data length])) {
        return nil;
    }
    NSArray *bitmaps = [NSBitmapImageRep imageRepsWithData:data];
    if ([bitmaps count] == 0) {
        return nil;
    }
    NSImage *image = [[NSImage alloc] initWithSize:[[bitmaps objectAtIndex:0] size]];
    [image addRepresentations:bitmaps];
    return image;
}

} // namespace tarnwick
