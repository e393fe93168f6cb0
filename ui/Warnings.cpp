#include "ui/Warnings.h"

#include "editing/ListEditor.h"
#include "integration/FinderExtension.h"
#include "platform/Ports.h"
#include "platform/PreferenceStore.h"
#include "platform/RunLoop.h"
#include "platform/Workspace.h"
#include "ui/SettingsWindow.h"
#include "ui/StartDelay.h"
#include "ui/WindowLayout.h"

namespace tarnwick {

Warnings::Warnings(const Ports& ports, const RuleLists& lists, FinderExtension& extension, ListEditor& editor,
    SettingsWindow& window)
    : stores_(ports.preferences), workspace_(ports.workspace), runLoop_(ports.runLoop), extension_(extension),
      editor_(editor), window_(window),
      health_(lists, ports.folders, ports.bundle, ports.files, ports.images, ports.runLoop, window),
      remarks_(lists, health_, ports.bundle),
      notices_(extension, ports.bundle, ports.workspace, ports.preferences) {
    editor.onChange([this](RuleCategory category) { health_.listChanged(category); });
}

void Warnings::watch() {
    health_.watch();
    // The start is put off as long and comes first.
    runLoop_.performAfterDelay(startDelaySeconds, [this] { lookAround(); });
}

void Warnings::applicationActivated() {
    health_.applicationActivated();
    lookAround();
}

void Warnings::lookAround() {
    window_.showNotices(notices_.current());
    for (const auto page : allPages) {
        const auto& layout = layoutOf(page);
        for (const auto& facts : layout.switches) {
            window_.setSwitchForced(facts.key, stores_.isForced(facts.key));
        }
        if (!layout.enableAllTitle.empty()) {
            const auto key = factsOf(*layout.category).enableAllKey;
            window_.setSwitchForced(key, stores_.isForced(key));
        }
    }
}

void Warnings::showNextFault(RuleCategory category) {
    editor_.endEditing();
    if (const auto row = health_.nextFault(category, window_.selectedRow(category))) {
        window_.selectRow(category, *row);
    }
}

void Warnings::take(const Notice& notice) {
    switch (notice.step) {
    case NoticeStep::none:
        break;
    case NoticeStep::turnOn:
        extension_.openSystemPreferences();
        break;
    case NoticeStep::showInFinder:
        workspace_.showInFileViewer(notice.path);
        break;
    }
}

void Warnings::putAway(NoticeKind kind) {
    notices_.putAway(kind);
    window_.showNotices(notices_.current());
}

} // namespace tarnwick
