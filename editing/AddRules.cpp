#include "editing/AddRules.h"

#include "editing/ListEditor.h"
#include "editing/RuleTables.h"
#include "platform/ApplicationBundle.h"
#include "platform/Images.h"
#include "prefs/GroupContainer.h"
#include "prefs/HomeFolder.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RecordLayouts.h"
#include "prefs/RuleList.h"
#include "values/PathText.h"

namespace tarnwick {
namespace {

PlistData tiffOf(const ImagePointer& image) {
    return image ? image->tiff() : PlistData();
}

} // namespace

OpenPanelRequest AddRules::chooser(RuleCategory category) const {
    const auto& facts = factsOf(category);
    OpenPanelRequest request;
    request.canChooseFiles = facts.source == RuleSource::files;
    request.canChooseDirectories = facts.source == RuleSource::folders;
    request.canCreateDirectories = facts.source == RuleSource::folders;
    request.allowsMultipleSelection = true;
    request.extensionsHidden = facts.choosesWithoutExtensions;
    request.message = bundle_.localized(facts.chooserMessage);
    if (!facts.allowedType.empty()) {
        request.allowedFileTypes.emplace_back(facts.allowedType);
    }
    if (facts.rememberedFolderKey.empty()) {
        request.startFolder = GroupContainer(folders_).othersIconFolder();
    } else if (auto remembered = local_.text(facts.rememberedFolderKey)) {
        request.startFolder = std::move(remembered);
    } else {
        request.startFolder = homeSubfolder(folders_, "Desktop");
    }
    return request;
}

void AddRules::add(RuleCategory category) {
    editor_.endEditing();
    panels_.choose(chooser(category), [this, category](const OpenPanelAnswer& answer) {
        if (!answer.confirmed || answer.paths.empty()) {
            return;
        }
        editor_.endEditing();
        const auto files = beginCopying(category, answer.paths);
        auto records = makeRecords(category, answer.paths);
        // Also when every item was skipped.
        if (const auto key = factsOf(category).rememberedFolderKey; !key.empty()) {
            local_.set(key, withoutLastPathComponent(answer.paths.front()));
        }
        append(category, std::move(records), files);
    });
}

bool AddRules::addDropped(RuleCategory category, const std::vector<DroppedItem>& items) {
    const auto paths = droppablePaths(category, items);
    if (paths.empty()) {
        return false;
    }
    editor_.endEditing();
    const auto files = beginCopying(category, paths);
    append(category, makeRecords(category, paths), files);
    return true;
}

void AddRules::append(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files) {
    const auto hasNew = !records.empty();
    editor_.append(category, std::move(records), files);
    if (hasNew) {
        tables_.scrollToRow(category, static_cast<long>(editor_.list(category).size()) - 1);
    }
}

TemplateWork AddRules::beginCopying(RuleCategory category, const std::vector<std::string>& paths) {
    return factsOf(category).hasTemplateFiles ? templates_.beginCopying(paths) : TemplateWork();
}

std::vector<RuleRecord> AddRules::makeRecords(RuleCategory category, const std::vector<std::string>& paths) {
    std::vector<RuleRecord> records;
    for (const auto& path : paths) {
        if (auto record = makeRecord(category, path)) {
            records.push_back(*std::move(record));
        }
    }
    return records;
}

std::optional<RuleRecord> AddRules::makeRecord(RuleCategory category, const std::string& path) {
    switch (category) {
    case RuleCategory::createNewFile:
        return makeTemplate(path);
    case RuleCategory::copyFilesTo:
    case RuleCategory::commonPath:
        return makeFolderRecord(path, lastPathComponent(path));
    case RuleCategory::customIcon:
        return makeIcon(path);
    case RuleCategory::others:
        return makeAction(path);
    }
    return std::nullopt;
}

std::optional<RuleRecord> AddRules::makeTemplate(const std::string& path) {
    if (!templates_.copy(path)) {
        return std::nullopt;
    }
    return makeTemplateRecord(
        lastComponentWithoutExtension(path), pathExtension(path), "1", RecordOrigin::user);
}

std::optional<RuleRecord> AddRules::makeIcon(const std::string& path) {
    auto icon = tiffOf(images_.fromFile(path));
    if (icon.empty()) {
        return std::nullopt;
    }
    return makeIconRecord(std::move(icon), lastPathComponent(path), RecordOrigin::user);
}

std::optional<RuleRecord> AddRules::makeAction(const std::string& path) {
    const auto name = lastComponentWithoutExtension(path);
    auto icon = tiffOf(images_.named(name));
    if (icon.empty()) {
        return std::nullopt;
    }
    return makeActionRecord(std::move(icon), name, "");
}

} // namespace tarnwick
