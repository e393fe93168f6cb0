#pragma once

#include "platform/Platform.h"

namespace tarnwick {

/// Opens a chooser at the system's keyboard-shortcut file and returns. Each chosen file's path is logged and
/// the file is parsed; the parsed value is dropped.
void getSystemShortcuts(const Platform& platform);

} // namespace tarnwick
