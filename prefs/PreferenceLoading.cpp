#include "prefs/PreferenceLoading.h"

#include "platform/FileManager.h"
#include "platform/PreferenceStore.h"
#include "platform/SystemLog.h"
#include "prefs/FactoryLists.h"
#include "prefs/GroupContainer.h"
#include "prefs/IconFolders.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleList.h"
#include "prefs/RulePublisher.h"
#include "prefs/SharedPreferences.h"
#include "prefs/TemplateRecovery.h"
#include "prefs/UnreadableValues.h"

#include <algorithm>
#include <array>

namespace tarnwick {

void PreferenceLoading::prepareStoresAndFolders() {
    SharedPreferences shared(stores_);
    local_.open(stores_);
    keepUnreadableOriginals(local_, log_);
    keepUnreadableFeatures(shared, local_, log_);
    seedSwitches(shared);
    if (!local_.contains(factsOf(RuleCategory::copyFilesTo).listKey)) {
        buildFeatureArray();
    }
    recovery_.recoverHeld(RuleList(RuleCategory::createNewFile, storedRecords(RuleCategory::createNewFile)));
    ensureTemplates();
    icons_.rebuild();
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

void PreferenceLoading::ensureTemplates() {
    const auto folder = GroupContainer(folders_).templateFolder();
    if (folder && files_.exists(*folder)) {
        return;
    }
    if (!folder && local_.containsArray(factsOf(RuleCategory::createNewFile).listKey)) {
        // Without a container there is nothing to repair, and the stored list must not be lost for it.
        log_.write("no group container: the stored templates stay without files");
        return;
    }
    factory_.reset(RuleCategory::createNewFile);
}

void PreferenceLoading::loadLists() {
    for (const auto category : loadedFirst) {
        load(category);
    }
    recovery_.recover(lists_[RuleCategory::createNewFile], FactoryLists::isFactoryTemplates);
    if (!local_.contains(key::imageToIcon)) {
        addImageToIconFeature();
    }
    for (const auto category : loadedLast) {
        load(category);
    }
    addMissingEditors();
}

std::vector<RuleRecord> PreferenceLoading::storedRecords(RuleCategory category) const {
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
    return records;
}

void PreferenceLoading::load(RuleCategory category) {
    lists_[category].assign(storedRecords(category));
    if (factsOf(category).isNeverEmpty && lists_[category].empty()) {
        factory_.reset(category);
    }
}

void PreferenceLoading::addImageToIconFeature() {
    const auto stored = SharedPreferences(stores_).value(key::enabledFeatures);
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

} // namespace tarnwick
