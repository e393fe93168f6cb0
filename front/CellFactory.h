#pragma once

#import <AppKit/AppKit.h>

#include "prefs/RuleCategory.h"

namespace tarnwick {

struct CellRemark;
struct CellView;

/// Builds exactly the control that the core decided on, which calls itself `label` to those who do not see
/// it; autoreleased. `controller` becomes the target of check boxes, whose action is that of the
/// category, and the delegate of editable fields.
[[nodiscard]] NSView *makeCell(const CellView &cell, RuleCategory category, NSString *label, id controller);

/// Says beside the cell what the remark says: marks its text, and sets the tool tip and the help of its
/// control.
void remarkOn(NSView *cell, const CellRemark &remark);

} // namespace tarnwick
