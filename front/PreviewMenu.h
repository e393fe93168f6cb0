#pragma once

#import <AppKit/AppKit.h>

#include "ui/MenuPreview.h"

#include <vector>

namespace tarnwick {

/// Builds a menu of these items, whose rules are sent to `controller` when they are chosen; autoreleased. An
/// icon is asked of `preview` when it comes in sight.
[[nodiscard]] NSMenu *makePreviewMenu(
    const MenuPreview &preview, const std::vector<PreviewItem> &items, id controller);

} // namespace tarnwick

/// Stands for a rule.
@interface PreviewedRule : NSMenuItem {
@private
    tarnwick::PreviewItem _item;
    const tarnwick::MenuPreview *_preview;
}

- (const tarnwick::PreviewItem &)item;

@end
