#pragma once

#include "transfer/ExportSettings.h"
#include "transfer/ImportPlan.h"
#include "transfer/ImportSettings.h"

#include <functional>
#include <memory>
#include <string>

namespace tarnwick {

class ApplicationBundle;
class FileContents;
class Images;
class ListEditor;
class Panels;
class RuleLists;
class RuleTables;
class RunLoop;
class StepNames;
struct Ports;
struct Preferences;

/// Settings as a file, as the user asks for it: the panels, and what is said of what came of it.
class SettingsTransfer {
public:
    SettingsTransfer(const Ports& ports, Preferences& preferences, ListEditor& editor, RuleTables& tables,
        const StepNames& names);

    /// Asks where to, and writes the settings as they are by then. Says so when that fails, or when a
    /// template file is not among them.
    void exportSettings();
    /// Asks for a file, says what it would replace, and imports it if the user agrees. Before that the
    /// present settings may be exported. Says so when nothing can be imported.
    void importSettings();

private:
    /// `then` is called once the panel is closed and what was to be written or said is.
    void exportSettings(std::function<void()> then);
    void exportTo(const std::string& path);
    void importFrom(const std::string& path);
    /// Shared with the save panel that may come in between, and lives as long as somebody asks.
    void ask(const std::shared_ptr<const ImportPlan>& plan);
    void refuse(ImportFault fault);
    void say(std::string message, std::string information);

    ExportSettings exporting_;
    ImportSettings importing_;
    const RuleLists& lists_;
    Panels& panels_;
    FileContents& contents_;
    Images& images_;
    const ApplicationBundle& bundle_;
    const RunLoop& clock_;
    ListEditor& editor_;
    /// Where the panels begin: with the file that was chosen last, at first among the user's documents.
    std::string folder_;
};

} // namespace tarnwick
