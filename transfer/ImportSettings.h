#pragma once

#include "transfer/ImportPlan.h"
#include "values/PlistValue.h"

namespace tarnwick {

class FileContents;
class HeldFiles;
class ListEditor;
class LocalPreferences;
class RuleTables;
class StepNames;

/// Makes the settings what a plan asks for, in one step of undo.
class ImportSettings {
public:
    ImportSettings(LocalPreferences& local, FileContents& contents, HeldFiles& held, ListEditor& editor,
        RuleTables& tables, const StepNames& names)
        : local_(local), contents_(contents), held_(held), editor_(editor), tables_(tables), names_(names) {}

    /// Order: the template files, made ready where held files are; the switches that change, into
    /// `LocalPreferences` alone; then each list with its files, in the order of an edited row, and without a
    /// selected row. False when the files cannot be made ready, and then nothing has changed.
    [[nodiscard]] bool apply(const ImportPlan& plan);

private:
    /// Those that are not among them are stored nowhere afterwards.
    void setSwitches(const PlistDictionary& switches);
    [[nodiscard]] PlistDictionary storedSwitches() const;
    [[nodiscard]] std::string stepName() const;

    LocalPreferences& local_;
    FileContents& contents_;
    HeldFiles& held_;
    ListEditor& editor_;
    RuleTables& tables_;
    const StepNames& names_;
};

} // namespace tarnwick
