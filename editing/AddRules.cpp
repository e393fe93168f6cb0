#include "editing/AddRules.h"

#include "editing/RulePages.h"
#include "platform/Images.h"
#include "platform/KnownFolders.h"
#include "prefs/GroupContainer.h"
#include "prefs/HomeFolder.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RecordLayouts.h"
#include "values/PathText.h"

#include <array>
#include <string_view>

namespace tarnwick {
namespace {

enum class Chooses { files, folders };

/// How the choosers differ, a line a category; every one allows several items. An empty type: any.
struct ChooserFacts {
    Chooses chooses;
    std::string_view allowedType;
    bool extensionsHidden;
};

constexpr std::array<ChooserFacts, 5> choosers{{
    {Chooses::files, "", false},    // CreateNewFile
    {Chooses::folders, "", false},  // CopyFilesTo
    {Chooses::folders, "", false},  // CommonPath
    {Chooses::files, "png", false}, // CustomIcon
    {Chooses::files, "png", true},  // Others
}};

PlistData tiffOf(const ImagePointer& image) {
    return image ? image->tiff() : PlistData();
}

} // namespace

OpenPanelRequest AddRules::chooser(RuleCategory category) const {
    const auto& facts = choosers[static_cast<std::size_t>(category)];
    OpenPanelRequest request;
    request.canChooseFiles = facts.chooses == Chooses::files;
    request.canChooseDirectories = facts.chooses == Chooses::folders;
    request.canCreateDirectories = facts.chooses == Chooses::folders;
    request.allowsMultipleSelection = true;
    request.extensionsHidden = facts.extensionsHidden;
    if (!facts.allowedType.empty()) {
        request.allowedFileTypes.emplace_back(facts.allowedType);
    }
    const auto rememberedKey = factsOf(category).rememberedFolderKey;
    if (rememberedKey.empty()) {
        request.startFolder = GroupContainer(platform_.folders).othersIconFolder();
    } else if (auto remembered = local_.text(rememberedKey)) {
        request.startFolder = std::move(remembered);
    } else {
        request.startFolder = homeSubfolder(platform_.folders, "Desktop");
    }
    return request;
}

void AddRules::add(RuleCategory category) {
    pages_.endEditing();
    platform_.openPanel.begin(chooser(category), [this, category](const OpenPanelAnswer& answer) {
        if (!answer.confirmed || answer.paths.empty()) {
            return;
        }
        pages_.endEditing();
        appendRecords(category, answer.paths);
        // Also when every item was skipped.
        if (const auto key = factsOf(category).rememberedFolderKey; !key.empty()) {
            local_.set(key, withoutLastPathComponent(answer.paths.front()));
        }
        commit(category);
    });
}

void AddRules::addPaths(RuleCategory category, const std::vector<std::string>& paths) {
    if (paths.empty()) {
        return;
    }
    pages_.endEditing();
    appendRecords(category, paths);
    commit(category);
}

void AddRules::appendRecords(RuleCategory category, const std::vector<std::string>& paths) {
    if (category == RuleCategory::createNewFile) {
        templates_.noteCopies(paths);
    }
    for (const auto& path : paths) {
        if (auto record = makeRecord(category, path)) {
            pages_.list(category).append(*std::move(record));
        }
    }
}

void AddRules::commit(RuleCategory category) {
    pages_.store(category);
    if (category == RuleCategory::createNewFile) {
        templates_.forgetCopies();
    }
    local_.synchronize();
    pages_.reload(category);
    pages_.publish(category);
}

std::optional<RuleRecord> AddRules::makeRecord(RuleCategory category, const std::string& path) {
    switch (category) {
    case RuleCategory::createNewFile:
        if (!templates_.copy(path)) {
            return std::nullopt;
        }
        return makeTemplateRecord(
            lastComponentWithoutExtension(path), pathExtension(path), "1", RecordOrigin::user);
    case RuleCategory::copyFilesTo:
    case RuleCategory::commonPath:
        return makeFolderRecord(path, lastPathComponent(path));
    case RuleCategory::customIcon: {
        auto icon = tiffOf(platform_.images.fromFile(path));
        if (icon.empty()) {
            return std::nullopt;
        }
        return makeIconRecord(std::move(icon), lastPathComponent(path), RecordOrigin::user);
    }
    case RuleCategory::others:
        break;
    }
    const auto name = lastComponentWithoutExtension(path);
    auto icon = tiffOf(platform_.images.named(name));
    if (icon.empty()) {
        return std::nullopt;
    }
    return makeActionRecord(std::move(icon), name, "");
}

} // namespace tarnwick
