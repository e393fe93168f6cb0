#pragma once

#import <AppKit/AppKit.h>

namespace tarnwick {

/// The system's icon of a file as an image of the icon's own size. Autoreleased; each platform has its own
/// way.
[[nodiscard]] NSImage *iconOfFileAtPath(NSString *path);

} // namespace tarnwick
