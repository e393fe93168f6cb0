#include "prefs/FactoryLists.h"

#include "platform/Images.h"
#include "platform/SystemLog.h"
#include "prefs/HomeFolder.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RecordLayouts.h"
#include "prefs/RuleList.h"
#include "prefs/RulePublisher.h"
#include "prefs/TemplateFiles.h"

#include <algorithm>
#include <string>

namespace tarnwick {
namespace {

std::vector<RuleRecord> buildTemplates() {
    std::vector<RuleRecord> records;
    records.reserve(factoryTemplates.size());
    for (const auto& row : factoryTemplates) {
        records.push_back(
            makeTemplateRecord(row.displayName, row.extension, row.enable, RecordOrigin::factory));
    }
    return records;
}

} // namespace

std::optional<TemplateWork> FactoryLists::reset(RuleCategory category) {
    auto records = build(category);
    if (!records) {
        return TemplateWork();
    }
    auto& list = lists_[category];
    const auto hasFiles = factsOf(category).hasTemplateFiles;
    const auto files = hasFiles ? TemplateWork(TemplatesLaidOut()) : TemplateWork();
    const auto isFactory = hasFiles && isFactoryTemplates(list);
    templateFiles_.begin(files, list);
    list.assign(*std::move(records));
    local_.storeAndSynchronize(list);
    if (hasFiles) {
        // Whole, on purpose.
        publisher_.saveData(list.toPlist(), factsOf(category).listKey);
    }
    const auto back = templateFiles_.finish(files, list);
    return back && isFactory ? templateFiles_.unlessEqual(*back) : back;
}

bool FactoryLists::isFactoryTemplates(const RuleList& list) {
    const auto factory = buildTemplates();
    return std::equal(list.begin(), list.end(), factory.begin(), factory.end());
}

std::optional<std::vector<RuleRecord>> FactoryLists::build(RuleCategory category) {
    switch (category) {
    case RuleCategory::createNewFile:
        return buildTemplates();
    case RuleCategory::copyFilesTo:
        return buildTargets();
    case RuleCategory::commonPath:
        return std::nullopt;
    case RuleCategory::customIcon:
        return buildIcons();
    case RuleCategory::others:
        return buildOthers();
    }
    return std::nullopt;
}

std::vector<RuleRecord> FactoryLists::buildTargets() const {
    std::vector<RuleRecord> records;
    records.reserve(factoryTargets.size());
    for (const auto& name : factoryTargets) {
        records.push_back(makeFolderRecord(homeSubfolder(folders_, name), ""));
    }
    return records;
}

std::optional<std::vector<RuleRecord>> FactoryLists::buildIcons() {
    std::vector<RuleRecord> records;
    for (const auto& name : factoryIcons) {
        auto icon = imageData(name);
        if (icon.empty()) {
            return std::nullopt;
        }
        records.push_back(makeIconRecord(std::move(icon), name, RecordOrigin::factory));
    }
    return records;
}

std::optional<std::vector<RuleRecord>> FactoryLists::buildOthers() {
    std::vector<RuleRecord> records;
    for (const auto& row : factoryActions) {
        auto record = makeOthersRecord(row);
        if (!record) {
            return std::nullopt;
        }
        records.push_back(*std::move(record));
    }
    return records;
}

std::optional<RuleRecord> FactoryLists::makeOthersRecord(const FactoryAction& row) {
    auto icon = imageData(row.image);
    if (icon.empty()) {
        return std::nullopt;
    }
    return makeActionRecord(std::move(icon), row.action, row.note);
}

PlistData FactoryLists::imageData(std::string_view name) {
    const auto image = images_.named(name);
    auto data = image ? image->tiff() : PlistData();
    if (data.empty()) {
        log_.write(std::string("the application's image \"").append(name).append("\" is missing"));
    }
    return data;
}

} // namespace tarnwick
