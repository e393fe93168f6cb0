#include "tests/fuzz/Driving.h"

#include "tests/support/SettingsFixture.h"
#include "ui/RuleColumns.h"

#include <algorithm>
#include <string>

namespace tarnwick::fuzz {
namespace {

bool holds(const PlistValue* container, const PlistValue& element) {
    const auto* array = container ? container->array() : nullptr;
    return array && std::find(array->begin(), array->end(), element) != array->end();
}

const PlistValue* valueAt(const PlistDictionary& store, const std::string& key) {
    const auto found = store.find(key);
    return found == store.end() ? nullptr : &found->second;
}

} // namespace

Program::Program(testing::InMemoryPlatform& platform)
    : platform_(platform), window_(platform.log, platform.preferences),
      controller_(platform.ports(), window_) {
    testing::connect(platform_, window_, controller_);
}

void Program::launch() {
    controller_.awakeFromNib();
    platform_.runLoop.runMain();
}

void Program::showEverything() {
    for (const auto category : allRuleCategories) {
        const auto rows = controller_.rows().count(category);
        for (const auto& column : columnsOf(category)) {
            for (long row = -1; row <= rows; ++row) {
                static_cast<void>(controller_.rows().cell(category, column.identifier, row));
            }
        }
    }
}

bool keepsEverything(const PlistDictionary& local, std::string_view listKey, const PlistValue& stored) {
    const std::string key(listKey);
    std::vector<const PlistValue*> places{valueAt(local, key)};
    const auto firstKept = key + ".unreadable";
    for (auto found = local.lower_bound(firstKept);
         found != local.end() && found->first.rfind(firstKept, 0) == 0; ++found) {
        places.push_back(&found->second);
    }
    if (std::any_of(
            places.begin(), places.end(), [&](const auto* place) { return place && *place == stored; })) {
        return true;
    }
    const auto* elements = stored.array();
    return elements && std::all_of(elements->begin(), elements->end(), [&](const auto& element) {
        return std::any_of(
            places.begin(), places.end(), [&](const auto* place) { return holds(place, element); });
    });
}

} // namespace tarnwick::fuzz
