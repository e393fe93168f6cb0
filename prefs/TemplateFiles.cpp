#include "prefs/TemplateFiles.h"

#include "platform/FileManager.h"
#include "prefs/GroupContainer.h"
#include "prefs/RuleRecord.h"

#include <optional>
#include <string>

namespace tarnwick {
namespace {

std::optional<std::string> templatePath(const Platform& platform, const RuleRecord& record) {
    auto path = GroupContainer(platform.folders).templateFolder();
    const auto name = templateFileName(record);
    if (!path || name.find('/') != std::string::npos) {
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
