#include "prefs/FactoryLists.h"

#include "platform/ApplicationBundle.h"
#include "platform/FileManager.h"
#include "platform/Images.h"
#include "platform/SystemLog.h"
#include "prefs/GroupContainer.h"
#include "prefs/HomeFolder.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RecordLayouts.h"
#include "prefs/RuleList.h"
#include "prefs/RulePublisher.h"

#include <algorithm>
#include <string>

namespace tarnwick {
namespace {

std::vector<RuleRecord> templateRecords() {
    std::vector<RuleRecord> records;
    records.reserve(factoryTemplates.size());
    for (const auto& row : factoryTemplates) {
        records.push_back(
            makeTemplateRecord(row.displayName, row.extension, row.enable, RecordOrigin::factory));
    }
    return records;
}

} // namespace

void FactoryLists::resetArrOfCreateNewFile() {
    templateFiles_.noteLayout();
    commit(RuleCategory::createNewFile, templateRecords());
    publisher_.saveData(
        lists_[RuleCategory::createNewFile].toPlist(), factsOf(RuleCategory::createNewFile).listKey);
    layOutTemplates();
    templateFiles_.forgetLayout();
}

void FactoryLists::finishTemplateFiles() {
    const auto& stored = lists_[RuleCategory::createNewFile];
    if (templateFiles_.isLayoutPending()) {
        const auto factory = templateRecords();
        // Any other list has files of its own that the layout would remove.
        if (std::equal(stored.begin(), stored.end(), factory.begin(), factory.end())) {
            platform_.log.write("the template folder is laid out again after an interruption");
            layOutTemplates();
        }
    }
    templateFiles_.finish(stored);
}

void FactoryLists::layOutTemplates() {
    const auto folder = GroupContainer(platform_.folders).templateFolder();
    if (!folder) {
        platform_.log.write("no group container: the template folder is not laid out");
        return;
    }
    if (platform_.files.exists(*folder)) {
        platform_.files.remove(*folder);
    }
    platform_.files.createFolder(*folder);
    const auto resources = platform_.bundle.resourceFolder();
    std::size_t leftOut = 0;
    // A file that cannot be copied is left out; its record stays.
    const auto copy = [&](const std::string& file) {
        leftOut += platform_.files.copy(resources + file, *folder + file) ? 0 : 1;
    };
    for (const auto& record : lists_[RuleCategory::createNewFile]) {
        copy("/" + templateFileName(record));
        copy(std::string("/").append(record.text(field::extension)).append(".png"));
    }
    if (leftOut > 0) {
        platform_.log.write("template files and icons that could not be copied: " + std::to_string(leftOut));
    }
}

void FactoryLists::resetArrOfCopyFilesTo() {
    std::vector<RuleRecord> records;
    records.reserve(factoryTargets.size());
    for (const auto& name : factoryTargets) {
        records.push_back(makeFolderRecord(homeSubfolder(platform_.folders, name), ""));
    }
    commit(RuleCategory::copyFilesTo, std::move(records));
}

void FactoryLists::resetArrOfCustomIcon() {
    std::vector<RuleRecord> records;
    for (const auto& name : factoryIcons) {
        auto icon = imageData(name);
        if (icon.empty()) {
            return;
        }
        records.push_back(makeIconRecord(std::move(icon), name, RecordOrigin::factory));
    }
    commit(RuleCategory::customIcon, std::move(records));
}

void FactoryLists::resetArrOfOthers() {
    std::vector<RuleRecord> records;
    for (const auto& row : factoryActions) {
        auto record = makeOthersRecord(row);
        if (!record) {
            return;
        }
        records.push_back(*std::move(record));
    }
    commit(RuleCategory::others, std::move(records));
}

std::optional<RuleRecord> FactoryLists::makeOthersRecord(const FactoryAction& row) {
    auto icon = imageData(row.image);
    if (icon.empty()) {
        return std::nullopt;
    }
    return makeActionRecord(std::move(icon), row.action, row.note);
}

void FactoryLists::commit(RuleCategory category, std::vector<RuleRecord> records) {
    lists_[category].assign(std::move(records));
    local_.storeAndSynchronize(lists_[category]);
}

PlistData FactoryLists::imageData(std::string_view name) {
    const auto image = platform_.images.named(name);
    auto data = image ? image->tiff() : PlistData();
    if (data.empty()) {
        platform_.log.write(std::string("the application's image \"").append(name).append("\" is missing"));
    }
    return data;
}

} // namespace tarnwick
