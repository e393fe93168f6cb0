#include "prefs/TemplateFiles.h"

#include "platform/FileManager.h"
#include "prefs/GroupContainer.h"
#include "prefs/RuleRecord.h"

#include <optional>
#include <string>

namespace tarnwick {
namespace {

/// The texts of a record are the user's: a slash leads elsewhere, and the two dot names are folders.
bool namesAFileInTheFolder(const std::string& name) {
    return name.find('/') == std::string::npos && name != "." && name != "..";
}

std::optional<std::string> templatePath(const Platform& platform, const RuleRecord& record) {
    auto path = GroupContainer(platform.folders).templateFolder();
    const auto name = templateFileName(record);
    if (!path || !namesAFileInTheFolder(name)) {
        return std::nullopt;
    }
    path->append("/").append(name);
    return path;
}

} // namespace

void moveTemplateFile(const Platform& platform, const RuleRecord& old, const RuleRecord& changed) {
    const auto from = templatePath(platform, old);
    const auto to = templatePath(platform, changed);
    if (from && to) {
        platform.files.move(*from, *to);
    }
}

void removeTemplateFile(const Platform& platform, const RuleRecord& record) {
    if (const auto path = templatePath(platform, record)) {
        platform.files.remove(*path);
    }
}

} // namespace tarnwick
