#include "prefs/GroupContainer.h"

#include "platform/KnownFolders.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleRecord.h"

namespace tarnwick {

std::optional<std::string> GroupContainer::templateFolder() const {
    return folder("Templates/CreateNewFile");
}

std::optional<std::string> GroupContainer::functionIconFolder() const {
    return folder("Templates/FunctionIcon");
}

std::optional<std::string> GroupContainer::othersIconFolder() const {
    return folder("Templates/OthersMenuItemIcon");
}

std::optional<std::string> GroupContainer::folder(std::string_view relativePath) const {
    auto path = folders_.groupContainer(applicationGroup);
    if (path) {
        path->append("/").append(relativePath);
    }
    return path;
}

std::string templateFileName(std::string_view displayName, std::string_view extension) {
    std::string name(displayName);
    name.append(".").append(extension);
    return name;
}

std::string templateFileName(const RuleRecord& record) {
    return templateFileName(record.text(field::displayName), record.text(field::extension));
}

} // namespace tarnwick
