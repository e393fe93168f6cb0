#pragma once

#include "platform/UserScript.h"

#import <Foundation/Foundation.h>

namespace tarnwick {

/// What the user script is run with, as objects of the platform; autoreleased. macOS: the AppleScript task
/// and the Apple event. Linux: the task that runs the script, still without a handler, and what the event
/// holds as a dictionary of texts.

[[nodiscard]] id objectOf(UserScriptTask& task);
[[nodiscard]] id objectOf(const HandlerCallEvent& event);

} // namespace tarnwick
