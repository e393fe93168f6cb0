#pragma once

#import <AppKit/AppKit.h>

namespace tarnwick {

/// The size of a text in the system font of `pointSize` points. An empty or absent text is measured as a
/// single blank.
[[nodiscard]] NSSize textSize(NSString *text, CGFloat pointSize);
/// How high a label is whose text goes on in further lines where it is wider than the label.
[[nodiscard]] CGFloat heightOfLabel(NSString *text, CGFloat pointSize, CGFloat width);

} // namespace tarnwick
