#include "tests/support/SettingsFixture.h"

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

void connect(InMemoryPlatform& platform, InMemoryWindow& window, SettingsViewController& controller) {
    controller.connect(window.outlets());
    for (const auto category : allRuleCategories) {
        window.table(category).rowCount = [&controller, category] {
            return controller.numberOfRows(category);
        };
    }
    platform.preferences.observer = [&controller](std::string_view key, const PlistValue& value) {
        controller.observeValue(key, value);
    };
}

SettingsFixture::SettingsFixture() : window_(platform_.log), controller_(platform_.ports()) {
    connect(platform_, window_, controller_);
}

void SettingsFixture::launch() {
    controller_.awakeFromNib();
    platform_.runLoop.runMain();
    for (auto& table : window_.tables) {
        table.reloadData();
    }
    platform_.log.clear();
}

void SettingsFixture::storeList(RuleCategory category, std::vector<RuleRecord> records) {
    platform_.preferences.local.insert_or_assign(
        std::string(factsOf(category).listKey), RuleList(category, std::move(records)).toPlist());
}

const PlistValue& SettingsFixture::local(std::string_view key) const {
    return valueAt(platform_.preferences.local, key);
}

const PlistValue& SettingsFixture::shared(std::string_view key) const {
    return valueAt(platform_.preferences.shared, key);
}

const PlistArray& SettingsFixture::localList(RuleCategory category) const {
    return arrayAt(platform_.preferences.local, factsOf(category).listKey);
}

const PlistArray& SettingsFixture::sharedList(RuleCategory category) const {
    return arrayAt(platform_.preferences.shared, factsOf(category).listKey);
}

std::vector<std::string> SettingsFixture::texts(const PlistArray& list, std::string_view key) {
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
