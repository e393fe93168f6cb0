#pragma once

#include <string>

/// Alerts in a program that has started up.
namespace tarnwick::probe {

struct AlertLayout {
    bool fitsTheScreen = false;
    /// Of the message: all of it can be seen, at once or by scrolling.
    bool isWhole = false;
    bool scrolls = false;
    bool showsItsBeginning = false;
    bool iconIsAtTheLeft = false;
    /// Of two, the one that Return presses.
    bool defaultButtonIsAtTheLeft = false;
};
/// Of an alert with two buttons that has run.
AlertLayout layoutOfAlert(const std::string& message);

} // namespace tarnwick::probe
