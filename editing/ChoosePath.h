#pragma once

#include "prefs/RuleCategory.h"

namespace tarnwick {

class ApplicationBundle;
class KnownFolders;
class ListEditor;
class Panels;

/// Gives a rule that stands for a folder another one that the user chooses.
class ChoosePath {
public:
    ChoosePath(
        Panels& panels, const KnownFolders& folders, const ApplicationBundle& bundle, ListEditor& editor)
        : panels_(panels), folders_(folders), bundle_(bundle), editor_(editor) {}

    /// Opens a folder chooser at the Desktop and returns. Once it is confirmed, the record that then stands
    /// at `row` gets the first chosen folder and an empty name; if there is none any more, nothing changes.
    /// Order: list, store, synchronise, reload, publish.
    void selectPath(RuleCategory category, long row);

private:
    Panels& panels_;
    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    ListEditor& editor_;
};

} // namespace tarnwick
