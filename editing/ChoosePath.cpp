#include "editing/ChoosePath.h"

#include "editing/ListEditor.h"
#include "platform/ApplicationBundle.h"
#include "platform/Panels.h"
#include "prefs/HomeFolder.h"
#include "prefs/RuleList.h"

namespace tarnwick {

void ChoosePath::selectPath(RuleCategory category, long row) {
    editor_.endEditing();
    OpenPanelRequest request;
    request.canChooseFiles = false;
    request.canChooseDirectories = true;
    request.canCreateDirectories = true;
    request.startFolder = homeSubfolder(folders_, "Desktop");
    request.message = bundle_.localized("Choose the folder that this rule is to lead to.");
    panels_.choose(request, [this, category, row](const OpenPanelAnswer& answer) {
        if (!answer.confirmed || answer.paths.empty()) {
            return;
        }
        editor_.endEditing();
        const auto& list = editor_.list(category);
        if (!list.holds(row)) {
            return;
        }
        const auto index = static_cast<std::size_t>(row);
        // The name typed for the old folder goes; the new one shows its own.
        editor_.replace(category, index,
            list[index].with(field::realPath, answer.paths.front()).with(field::displayName, ""),
            StepKind::chooseFolder);
    });
}

} // namespace tarnwick
