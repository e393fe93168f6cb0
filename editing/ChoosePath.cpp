#include "editing/ChoosePath.h"

#include "editing/RulePages.h"
#include "platform/OpenPanel.h"
#include "prefs/HomeFolder.h"

namespace tarnwick {

void ChoosePath::selectPath(long row) {
    pages_.endEditing();
    OpenPanelRequest request;
    request.canChooseFiles = false;
    request.canChooseDirectories = true;
    request.canCreateDirectories = true;
    request.startFolder = homeSubfolder(platform_.folders, "Desktop");
    platform_.openPanel.begin(request, [this, row](const OpenPanelAnswer& answer) {
        if (!answer.confirmed || answer.paths.empty()) {
            return;
        }
        pages_.endEditing();
        constexpr auto category = RuleCategory::copyFilesTo;
        auto& list = pages_.list(category);
        if (!list.holds(row)) {
            return;
        }
        const auto index = static_cast<std::size_t>(row);
        // The name typed for the old folder goes; the new one shows its own.
        list.replace(
            index, list[index].with(field::realPath, answer.paths.front()).with(field::displayName, ""));
        pages_.storeAndSynchronize(category);
        pages_.reload(category);
        pages_.publish(category);
    });
}

} // namespace tarnwick
