#pragma once

#include "platform/Platform.h"

namespace tarnwick {

class RulePages;

/// Gives a copy/move-to target a folder that the user chooses.
class ChoosePath {
public:
    ChoosePath(const Platform& platform, RulePages& pages) : platform_(platform), pages_(pages) {}

    /// Opens a folder chooser at the Desktop and returns. Once it is confirmed, the record that then stands
    /// at `row` gets the first chosen folder and an empty name; if there is none any more, nothing changes.
    /// Order: list, store, synchronise, reload, publish.
    void selectPath(long row);

private:
    Platform platform_;
    RulePages& pages_;
};

} // namespace tarnwick
