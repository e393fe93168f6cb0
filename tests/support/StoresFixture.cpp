#include "tests/support/StoresFixture.h"

#include "prefs/RuleList.h"

namespace tarnwick::testing {
namespace {

const PlistValue& valueAt(const PlistDictionary& store, std::string_view key) {
    static const PlistValue missing("(missing)");
    const auto found = store.find(key);
    return found == store.end() ? missing : found->second;
}

const PlistArray& arrayAt(const PlistDictionary& store, std::string_view key) {
    static const PlistArray missing{PlistValue("(missing)")};
    const auto* array = valueAt(store, key).array();
    return array ? *array : missing;
}

} // namespace

void StoresFixture::storeList(RuleCategory category, std::vector<RuleRecord> records) {
    platform_.preferences.local.insert_or_assign(
        std::string(factsOf(category).listKey), RuleList(category, std::move(records)).toPlist());
}

const PlistValue& StoresFixture::local(std::string_view key) const {
    return valueAt(platform_.preferences.local, key);
}

const PlistValue& StoresFixture::shared(std::string_view key) const {
    return valueAt(platform_.preferences.shared, key);
}

const PlistArray& StoresFixture::localList(RuleCategory category) const {
    return arrayAt(platform_.preferences.local, factsOf(category).listKey);
}

const PlistArray& StoresFixture::sharedList(RuleCategory category) const {
    return arrayAt(platform_.preferences.shared, factsOf(category).listKey);
}

std::vector<std::string> StoresFixture::texts(const PlistArray& list, std::string_view key) {
    std::vector<std::string> found;
    for (const auto& element : list) {
        const auto* fields = element.dictionary();
        const auto entry = fields ? fields->find(key) : PlistDictionary::const_iterator();
        const auto* text = fields && entry != fields->end() ? entry->second.string() : nullptr;
        found.push_back(text ? *text : "-");
    }
    return found;
}

RuleRecord makeRecord(std::initializer_list<std::pair<std::string_view, PlistValue>> fields) {
    PlistDictionary dictionary;
    for (const auto& [key, value] : fields) {
        dictionary.insert_or_assign(std::string(key), value);
    }
    return RuleRecord(std::move(dictionary));
}

} // namespace tarnwick::testing
