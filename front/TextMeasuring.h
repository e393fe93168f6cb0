#pragma once

#import <AppKit/AppKit.h>

namespace tarnwick {

/// The size of a text in the system font of `pointSize` points. An empty or absent text is measured as a
/// single blank.
[[nodiscard]] NSSize textSize(NSString *text, CGFloat pointSize);

} // namespace tarnwick
