#include "prefs/PreferenceLoading.h"

#include "platform/ApplicationBundle.h"
#include "platform/FileManager.h"
#include "platform/PreferenceStore.h"
#include "platform/SystemLog.h"
#include "prefs/FactoryLists.h"
#include "prefs/GroupContainer.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleList.h"
#include "prefs/RulePublisher.h"
#include "prefs/SharedPreferences.h"
#include "prefs/UnreadableValues.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 5> functionIconNames{
    "createNewFile", "copyFilesTo", "moveFilesTo", "commonPath", "customIcon"};

constexpr std::array<std::string_view, 14> othersIconNames{"Hidden Selected Files",
    "Hidden All Files in Path", "Nohidden Selected Files", "Nohidden All Files in Path", "Open in iTerm2",
    "Delete directly", "Open in Terminal", "Paste", "Copy Path", "Cut", "Image to Icon", "VSCode",
    "Sublime Text", "Emacs"};

} // namespace

void PreferenceLoading::prepareStoresAndFolders() {
    SharedPreferences shared(platform_.preferences);
    local_.open(platform_.preferences);
    keepUnreadableOriginals(local_, platform_.log);
    keepUnreadableFeatures(shared, local_, platform_.log);
    seedSwitches(shared);
    if (!local_.containsArray(factsOf(RuleCategory::copyFilesTo).listKey)) {
        buildFeatureArray();
    }
    const GroupContainer container(platform_.folders);
    ensureTemplates(container.templateFolder());
    std::size_t leftOut = 0;
    if (const auto folder = container.functionIconFolder()) {
        leftOut += rebuildIconFolder(*folder, functionIconNames);
    }
    if (const auto folder = container.othersIconFolder()) {
        leftOut += rebuildIconFolder(*folder, othersIconNames);
    }
    if (leftOut > 0) {
        platform_.log.write("icons for the extension that could not be copied: " + std::to_string(leftOut));
    }
}

void PreferenceLoading::seedSwitches(SharedPreferences& shared) {
    for (const auto& group : seedGroups) {
        if (local_.contains(group.trigger())) {
            continue;
        }
        for (const auto& key : group.keys) {
            shared.set(key, true);
            local_.set(key, true);
        }
    }
}

void PreferenceLoading::buildFeatureArray() {
    PlistArray features;
    for (const auto& name : featureNames) {
        local_.set(name, true);
        features.emplace_back(name);
    }
    publisher_.saveData(PlistValue(std::move(features)), key::enabledFeatures);
}

void PreferenceLoading::ensureTemplates(const std::optional<std::string>& folder) {
    if (folder && platform_.files.exists(*folder)) {
        return;
    }
    if (!folder && local_.containsArray(factsOf(RuleCategory::createNewFile).listKey)) {
        // Without a container there is nothing to repair, and the stored list must not be lost for it.
        platform_.log.write("no group container: the stored templates stay without files");
        return;
    }
    factory_.resetArrOfCreateNewFile();
}

std::size_t PreferenceLoading::rebuildIconFolder(
    const std::string& folder, std::span<const std::string_view> names) {
    if (platform_.files.exists(folder)) {
        platform_.files.remove(folder);
    }
    platform_.files.createFolder(folder);
    const auto resources = platform_.bundle.resourceFolder();
    std::size_t copied = 0;
    for (const auto& name : names) {
        if (platform_.files.exists(resources)) {
            // An icon that the resources lack is left out.
            const auto file = std::string("/").append(name).append(".png");
            copied += platform_.files.copy(resources + file, folder + file) ? 1 : 0;
        }
    }
    return names.size() - copied;
}

void PreferenceLoading::loadLists() {
    load(RuleCategory::copyFilesTo);
    load(RuleCategory::commonPath);
    load(RuleCategory::createNewFile);
    factory_.finishTemplateFiles();
    if (!local_.contains(key::imageToIcon)) {
        addImageToIconFeature();
    }
    load(RuleCategory::customIcon);
    if (lists_[RuleCategory::customIcon].empty()) {
        factory_.resetArrOfCustomIcon();
    }
    load(RuleCategory::others);
    if (lists_[RuleCategory::others].empty()) {
        factory_.resetArrOfOthers();
    }
    addMissingEditors();
}

void PreferenceLoading::load(RuleCategory category) {
    std::vector<RuleRecord> records;
    const auto stored = local_.value(factsOf(category).listKey);
    if (const auto* elements = stored ? stored->array() : nullptr) {
        records.reserve(elements->size());
        for (const auto& element : *elements) {
            if (auto fields = element.sharedDictionary()) {
                records.emplace_back(std::move(fields));
            }
        }
    }
    lists_[category].assign(std::move(records));
}

void PreferenceLoading::addImageToIconFeature() {
    const auto stored = SharedPreferences(platform_.preferences).value(key::enabledFeatures);
    const auto* published = stored ? stored->array() : nullptr;
    auto features = published ? *published : PlistArray();
    local_.set(key::imageToIcon, true);
    features.emplace_back(key::imageToIcon);
    publisher_.saveData(PlistValue(std::move(features)), key::enabledFeatures);
}

void PreferenceLoading::addMissingEditors() {
    auto& others = lists_[RuleCategory::others];
    std::array<bool, editorActionIndexes.size()> present{};
    for (std::size_t editor = 0; editor < present.size(); ++editor) {
        const auto action = factoryActions[editorActionIndexes[editor]].action;
        present[editor] = std::any_of(others.begin(), others.end(),
            [&](const auto& record) { return record.text(field::action) == action; });
    }
    for (std::size_t editor = 0; editor < present.size(); ++editor) {
        const auto index = editorActionIndexes[editor];
        if (present[editor]) {
            continue;
        }
        if (auto record = factory_.makeOthersRecord(factoryActions[index])) {
            // Past the end of a short list it is appended.
            others.insert(index, *std::move(record));
        }
    }
}

void PreferenceLoading::observeMirroredKeys() {
    for (const auto& key : mirroredKeys) {
        platform_.preferences.observeStandardKey(key);
    }
}

} // namespace tarnwick
