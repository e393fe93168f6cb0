#include "tests/soak/StoredState.h"

#include "adapters/foundation/Adapters.h"
#include "platform/FileContents.h"
#include "platform/PreferenceStore.h"
#include "prefs/PreferenceKeys.h"
#include "tests/soak/EditingApplication.h"

#include <dirent.h>
#include <memory>

namespace tarnwick::soak {
namespace {

using testing::RuleModel;

RuleModel::Records recordsIn(const std::optional<PlistValue>& stored) {
    RuleModel::Records records;
    if (const auto* elements = stored ? stored->array() : nullptr) {
        for (const auto& element : *elements) {
            if (const auto* fields = element.dictionary()) {
                records.push_back(*fields);
            }
        }
    }
    return records;
}

std::set<std::string> namesIn(const std::string& folder) {
    std::set<std::string> names;
    if (auto* directory = opendir(folder.c_str())) {
        while (const auto* entry = readdir(directory)) {
            const std::string name = entry->d_name;
            if (name != "." && name != "..") {
                names.insert(name);
            }
        }
        closedir(directory);
    }
    return names;
}

} // namespace

RuleModel stateOf(const std::string& sandbox) {
    RuleModel model;
    const auto stores = makePreferenceStores();
    const auto local = stores->openStandardDomain();
    const auto factory = makeFileContents()->propertyList(sandbox + "/factory.plist");
    for (const auto category : allRuleCategories) {
        const auto& facts = factsOf(category);
        model.lists[category] = recordsIn(local->value(facts.listKey));
        if (const auto* values = factory ? factory->dictionary() : nullptr) {
            if (const auto found = values->find(facts.listKey); found != values->end()) {
                model.factory[category] = recordsIn(found->second);
            }
        }
    }
    auto& targets = model.factory[RuleCategory::copyFilesTo];
    targets.clear();
    for (const auto* name : {"Downloads", "Pictures", "Music", "Movies"}) {
        targets.push_back(
            {{"enable", 1}, {"displayName", ""}, {"realPath", "/Users/" + userName() + "/" + name}});
    }
    model.addMissingEditors();
    model.files = namesIn(
        sandbox + "/library/Group Containers/" + std::string(applicationGroup) + "/Templates/CreateNewFile");
    return model;
}

} // namespace tarnwick::soak
