#pragma once

#include "platform/Platform.h"

namespace tarnwick {

/// Refuses to run when the application was started as a login item: an alert, then the process ends with
/// status 0. Otherwise nothing happens.
void refuseLoginItemStart(const Platform& platform);

} // namespace tarnwick
