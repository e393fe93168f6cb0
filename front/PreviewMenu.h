#pragma once

#import <AppKit/AppKit.h>

#include "prefs/RuleCategory.h"

#include <vector>

namespace tarnwick {

class MenuPreview;
struct PreviewItem;

/// Builds a menu of these items, whose rules are sent to `controller` when they are chosen; autoreleased.
[[nodiscard]] NSMenu *makePreviewMenu(
    const MenuPreview &preview, const std::vector<PreviewItem> &items, id controller);

} // namespace tarnwick

/// Stands for a rule.
@interface PreviewedRule : NSMenuItem {
@private
    tarnwick::RuleCategory _category;
    long _row;
}

- (tarnwick::RuleCategory)category;
- (long)row;

@end
