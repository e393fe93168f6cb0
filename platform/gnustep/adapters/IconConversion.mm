#import "platform/appkit/ImageConversion.h"

namespace tarnwick {

NSImage *iconOfFileAtPath(NSString *path) {
    return [[NSWorkspace sharedWorkspace] iconForFile:path];
}

} // namespace tarnwick
