#pragma once

#include "transfer/ExportSettings.h"

#include <functional>
#include <string>

namespace tarnwick {

class ApplicationBundle;
class Clock;
class ListEditor;
class Panels;
class PropertyListFiles;
struct Ports;
struct Preferences;

/// Settings as a file, as the user asks for it: the panels, and what is said of what came of it.
class SettingsTransfer {
public:
    SettingsTransfer(const Ports& ports, const Preferences& preferences, ListEditor& editor);

    /// Asks where to, and writes the settings as they are by then. Says so when that fails, or when a
    /// template file is not among them.
    void exportSettings();

private:
    void exportTo(const std::string& path);
    void say(std::string message, std::string information);

    ExportSettings exporting_;
    Panels& panels_;
    PropertyListFiles& files_;
    const ApplicationBundle& bundle_;
    const Clock& clock_;
    ListEditor& editor_;
};

} // namespace tarnwick
