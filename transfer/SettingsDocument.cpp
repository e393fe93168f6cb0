#include "transfer/SettingsDocument.h"

#include "prefs/GroupContainer.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleRecord.h"

namespace tarnwick {

std::vector<std::string_view> optionSwitches() {
    std::vector<std::string_view> keys;
    for (const auto& group : seedGroups) {
        keys.insert(keys.end(), group.keys.begin(), group.keys.end());
    }
    keys.push_back(key::disableAutoName);
    return keys;
}

std::vector<std::string> templateFilesOf(const RuleRecord& record) {
    const std::string extension(record.text(field::extension));
    std::vector<std::string> names{templateFileName(record)};
    if (extension.empty()) {
        names.emplace_back(record.text(field::displayName));
    }
    names.push_back(extension + ".png");
    return names;
}

} // namespace tarnwick
