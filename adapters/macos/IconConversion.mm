#import "adapters/foundation/ImageConversion.h"

namespace tarnwick {

/// An icon carries many sizes, and drawing all of them into a TIFF makes it needlessly large: the one that
/// suits the icon's size is kept.
NSImage *iconOfFileAtPath(NSString *path) {
    NSImage *icon = [[NSWorkspace sharedWorkspace] iconForFile:path];
    const CGImageRef picture = [icon CGImageForProposedRect:nullptr context:nil hints:nil];
    if (!picture) {
        return icon;
    }
    return [[[NSImage alloc] initWithCGImage:picture size:[icon size]] autorelease];
}

NSImage *newImageWithData(NSData *data) {
    return [[NSImage alloc] initWithData:data];
}

} // namespace tarnwick
