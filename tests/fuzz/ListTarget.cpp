// Reading one stored value into a list: the dictionaries of an array, in order and unchanged, and nothing
// else.

#include "prefs/Preferences.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/Require.h"
#include "tests/support/InMemoryPlatform.h"

#include <string>
#include <vector>

namespace {

using namespace tarnwick;

std::vector<PlistDictionary> dictionariesIn(const PlistValue& stored) {
    std::vector<PlistDictionary> found;
    if (const auto* elements = stored.array()) {
        for (const auto& element : *elements) {
            if (const auto* fields = element.dictionary()) {
                found.push_back(*fields);
            }
        }
    }
    return found;
}

/// What the launch refills or completes begins with, or is, something else than the stored list.
bool isCompleted(RuleCategory category, const std::vector<PlistDictionary>& stored) {
    return category == RuleCategory::others || (category == RuleCategory::customIcon && stored.empty());
}

void checkRecord(const RuleRecord& record, fuzz::FuzzInput& input) {
    static_cast<void>(record.hasProtectedAction());
    static_cast<void>(record.data(field::icon).size());
    const auto before = record.toPlist();
    const auto field = input.text();
    const auto value = input.value(1);
    const auto changed = record.with(field, value);
    fuzz::require(record.toPlist() == before, "a change leaves the record as it was");
    fuzz::require(changed.value(field) && *changed.value(field) == value, "the copy has the new value");
    const auto* text = value.string();
    fuzz::require(changed.text(field) == (text ? *text : std::string()), "only a text reads as text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::FuzzInput input(bytes, size);
    const auto category = allRuleCategories[static_cast<std::size_t>(input.pick(5))];
    const auto stored = input.list();
    testing::InMemoryPlatform platform;
    platform.preferences.local.insert_or_assign(std::string(factsOf(category).listKey), stored);

    Preferences preferences(platform.ports());
    preferences.local.open(platform.preferences);
    preferences.loading.loadLists();

    const auto& list = preferences.lists[category];
    const auto expected = dictionariesIn(stored);
    if (!isCompleted(category, expected)) {
        fuzz::require(list.size() == expected.size(), "every dictionary is a record");
        for (std::size_t index = 0; index < expected.size(); ++index) {
            fuzz::require(list[index].toPlist() == PlistValue(expected[index]), "records are as stored");
        }
    }
    fuzz::require(list.size() >= expected.size(), "no record is lost");
    std::size_t enabled = 0;
    for (const auto& record : list) {
        enabled += record.isEnabled() ? 1 : 0;
        checkRecord(record, input);
    }
    fuzz::require(list.enabledToPlist().array()->size() == enabled, "what is enabled is published");
    fuzz::require(list.toPlist().array()->size() == list.size(), "all of it is stored");
    return 0;
}
