#pragma once

#import <AppKit/AppKit.h>

#include <functional>

namespace tarnwick::bench {

/// Answers each line on standard input, as `serveLines` does:
///
/// - "do KEYS": the keys are pressed; "done".
/// - "time KEYS": so are these; the microseconds until another row is selected, or another view has the
///   keyboard, and the window is drawn again.
/// - "validate": each menu of the menu bar is brought up to date; the microseconds.
/// - "row": the selected row.
///
/// KEYS is a character, "Return" or "Escape", after "Command+" and "Shift+" for those held meanwhile.
/// `table()` is the table that is shown.
void serveKeys(const std::function<NSTableView*()>& table);

} // namespace tarnwick::bench
