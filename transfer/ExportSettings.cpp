#include "transfer/ExportSettings.h"

#include "platform/ApplicationBundle.h"
#include "platform/FileContents.h"
#include "platform/FileManager.h"
#include "platform/RunLoop.h"
#include "prefs/GroupContainer.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"
#include "transfer/SettingsDocument.h"
#include "values/PathText.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>

namespace tarnwick {
namespace {

/// The dictionaries among what is stored: anything else is no record, and a start has kept it aside.
std::optional<PlistArray> storedRecords(const LocalPreferences& local, RuleCategory category) {
    const auto stored = local.value(factsOf(category).listKey);
    const auto* elements = stored ? stored->array() : nullptr;
    if (!elements) {
        return std::nullopt;
    }
    PlistArray records;
    records.reserve(elements->size());
    std::copy_if(elements->begin(), elements->end(), std::back_inserter(records),
        [](const auto& element) { return element.dictionary() != nullptr; });
    return records;
}

} // namespace

ExportedSettings ExportSettings::collect() const {
    ExportedSettings exported{PlistDictionary(), {}};
    PlistDictionary settings;
    settings.emplace(document::application, applicationIdentifier);
    settings.emplace(document::format, settingsFormat);
    settings.emplace(document::version, bundle_.shortVersion());
    // A file of settings has whole seconds.
    settings.emplace(document::date, PlistDate{std::floor(clock_.date().secondsSinceReferenceDate)});
    addLists(settings);
    settings.emplace(document::switches, switches());
    settings.emplace(document::templateFiles, templateFiles(exported.leftOut));
    exported.document = PlistValue(std::move(settings));
    return exported;
}

void ExportSettings::addLists(PlistDictionary& document) const {
    for (const auto category : allRuleCategories) {
        if (auto records = storedRecords(local_, category)) {
            document.emplace(factsOf(category).listKey, *std::move(records));
        }
    }
}

PlistDictionary ExportSettings::switches() const {
    PlistDictionary stored;
    for (const auto key : optionSwitches()) {
        if (auto value = local_.value(key); value && flagValue(*value)) {
            stored.emplace(key, *std::move(value));
        }
    }
    return stored;
}

PlistDictionary ExportSettings::templateFiles(std::vector<std::string>& leftOut) const {
    PlistDictionary trees;
    const auto folder = GroupContainer(folders_).templateFolder();
    const auto records = storedRecords(local_, RuleCategory::createNewFile);
    if (!folder || !records) {
        return trees;
    }
    std::set<std::string> names;
    for (const auto& record : *records) {
        for (auto& name : templateFilesOf(RuleRecord(record.sharedDictionary()))) {
            names.insert(std::move(name));
        }
    }
    for (const auto& name : names) {
        const auto path = *folder + "/" + name;
        if (!isFileName(name) || !files_.exists(path)) {
            continue;
        }
        if (auto tree = contents_.readTree(path)) {
            trees.emplace(name, *std::move(tree));
        } else {
            leftOut.push_back(name);
        }
    }
    return trees;
}

} // namespace tarnwick
