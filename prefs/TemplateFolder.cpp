#include "prefs/TemplateFolder.h"

#include "platform/ApplicationBundle.h"
#include "platform/FileManager.h"
#include "platform/SystemLog.h"
#include "prefs/GroupContainer.h"
#include "prefs/RuleList.h"
#include "values/PathText.h"

namespace tarnwick {

std::optional<std::string> TemplateFolder::path() const {
    return GroupContainer(folders_).templateFolder();
}

std::optional<std::string> TemplateFolder::pathOf(const std::string& name) const {
    auto place = path();
    if (!place || !isFileName(name)) {
        return std::nullopt;
    }
    place->append("/").append(name);
    return place;
}

void TemplateFolder::layOut(const RuleList& templates) {
    const auto folder = path();
    if (!folder) {
        return;
    }
    files_.createFolder(*folder);
    const auto resources = bundle_.resourceFolder();
    std::size_t leftOut = 0;
    const auto copyResource = [&](const std::string& file) {
        leftOut += files_.copy(resources + file, *folder + file) ? 0 : 1;
    };
    for (const auto& record : templates) {
        copyResource("/" + templateFileName(record));
        copyResource(std::string("/").append(record.text(field::extension)).append(".png"));
    }
    if (leftOut > 0) {
        log_.write("template files and icons that could not be copied: " + std::to_string(leftOut));
    }
}

bool TemplateFolder::bringBack(const std::string& place, const std::string& path) {
    return files_.rename(place, path) || files_.copy(place, path);
}

} // namespace tarnwick
