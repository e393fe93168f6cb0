#pragma once

#include "platform/Platform.h"

namespace tarnwick {

/// On a background queue: asks every running copy of the service application to terminate, then launches the
/// one among the built-in plug-ins, without waiting in between.
void relaunchService(const Platform& platform);

} // namespace tarnwick
