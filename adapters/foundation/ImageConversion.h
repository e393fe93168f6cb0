#pragma once

#import <AppKit/AppKit.h>

namespace tarnwick {

/// The system's icon of a file as an image of the icon's own size. Autoreleased; each platform has its own
/// way.
[[nodiscard]] NSImage *iconOfFileAtPath(NSString *path);
/// The picture in the bytes; nil when there is none that this platform's decoders can be trusted with. May
/// throw. Owned by the caller.
[[nodiscard]] NSImage *newImageWithData(NSData *data);

} // namespace tarnwick
