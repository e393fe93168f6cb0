#pragma once

#import <Foundation/Foundation.h>

#include "platform/UndoHistory.h"

#include <memory>

namespace tarnwick {

/// The history is the manager's, which may show it in menus. It groups by the calls alone from then on: what
/// an action does to an edit in progress is a step of its own, although both come of one event.
[[nodiscard]] std::unique_ptr<UndoHistory> makeUndoHistory(NSUndoManager* manager);

} // namespace tarnwick
