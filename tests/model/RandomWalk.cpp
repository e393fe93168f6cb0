#include "tests/model/RandomWalk.h"

#include "prefs/FactoryTables.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

/// A column that shows one text of a record, and the record's field.
struct ShownField {
    std::string_view column;
    std::string_view field;
};

constexpr PerCategory<ShownField> shownFields(ShownField{"NewFileDisplayName", "displayName"},
    ShownField{"realPath", "realPath"}, ShownField{"realPath", "realPath"},
    ShownField{"CustomIconName", "displayName"}, ShownField{"OthersDisplayName", "displayName"});

PlistArray asArray(const RuleModel::Records& records) {
    return {records.begin(), records.end()};
}

/// Pointers, because a copy of every record after every step takes longer than the steps.
template <class Condition>
std::vector<const PlistDictionary*> pointersTo(const RuleModel::Records& records, Condition condition) {
    std::vector<const PlistDictionary*> found;
    for (const auto& record : records) {
        if (condition(record)) {
            found.push_back(&record);
        }
    }
    return found;
}

bool holds(const PlistArray& list, const std::vector<const PlistDictionary*>& records) {
    return std::equal(list.begin(), list.end(), records.begin(), records.end(),
        [](const auto& element, const auto* record) {
            const auto* fields = element.dictionary();
            return fields && *fields == *record;
        });
}

PlistDictionary actionRecord(std::string_view action, std::string_view image, std::string_view note) {
    return {{"enable", 1}, {"icon", tiffOf("tiff of " + std::string(image))}, {"displayName", action},
        {"nameModified", "0"}, {"noteModified", "0"}, {"Action", action}, {"Note", note}};
}

} // namespace

RandomWalk::RandomWalk(Start start, std::function<long(long below)> pick) : pick_(std::move(pick)) {
    describeFactory();
    model_.lists = model_.factory;
    model_.list(RuleCategory::copyFilesTo).clear();
    if (start == Start::used) {
        useForLong();
    }
    for (const auto category : allRuleCategories) {
        originals_[category] = local(factsOf(category).listKey);
    }
    model_.layOutFiles();
    launch();
    start_ = moment();
}

void RandomWalk::describeFactory() {
    for (const auto& row : factoryTemplates) {
        model_.factory[RuleCategory::createNewFile].push_back({{"enable", row.enable},
            {"displayName", row.displayName}, {"extension", row.extension}, {"modified", "0"}});
    }
    for (const auto& name : factoryTargets) {
        model_.factory[RuleCategory::copyFilesTo].push_back(
            {{"enable", 1}, {"realPath", "/Users/anna/" + std::string(name)}, {"displayName", ""}});
    }
    for (const auto& name : factoryIcons) {
        model_.factory[RuleCategory::customIcon].push_back({{"enable", 1},
            {"icon", tiffOf("tiff of " + std::string(name))}, {"displayName", name}, {"modified", "0"}});
    }
    for (const auto& row : factoryActions) {
        model_.factory[RuleCategory::others].push_back(actionRecord(row.action, row.image, row.note));
    }
}

void RandomWalk::useForLong() {
    model_.failing = {"Word.docx"};
    platform_.files.failing.insert(templateFolder + "/Word.docx");
    model_.list(RuleCategory::copyFilesTo) = {{{"enable", 0}, {"realPath", "Undefined"}, {"displayName", ""}},
        {{"enable", true}, {"realPath", "/work"}, {"displayName", "Desk"}}};
    model_.list(RuleCategory::commonPath) = {{{"enable", 1}, {"realPath", "/old"}, {"displayName", "Old"}}};
    auto& others = model_.list(RuleCategory::others);
    others = {actionRecord("Cut", "Cut", ""), actionRecord("Translate by Google", "Google", "")};
    for (const auto category : {RuleCategory::copyFilesTo, RuleCategory::commonPath, RuleCategory::others}) {
        platform_.preferences.local.insert_or_assign(
            std::string(factsOf(category).listKey), asArray(model_.list(category)));
    }
    // The launch completes the list in memory only.
    others.push_back(actionRecord("Open in VSCode", "VSCode", ""));
    others.push_back(actionRecord("Open in Sublime Text", "Sublime Text", ""));
    others.push_back(actionRecord("Open in Emacs", "Emacs", ""));
    stored_[RuleCategory::others] = false;
}

std::vector<std::string> RandomWalk::onScreen(RuleCategory category) const {
    std::vector<std::string> texts;
    EXPECT_EQ(window_.numberOfRows(category), rows(category));
    for (long row = 0; row < rows(category); ++row) {
        const auto cell = controller_.rows().cell(category, shownFields[category].column, row);
        const auto* text = std::get_if<TextFieldCell>(&cell.control);
        texts.push_back(text ? text->text : "(no text)");
    }
    return texts;
}

std::vector<std::string> RandomWalk::expectedOnScreen(RuleCategory category) const {
    const std::string home = "/Users/anna";
    std::vector<std::string> texts;
    for (const auto& record : model_.list(category)) {
        const auto text = textIn(record, shownFields[category].field);
        texts.push_back(text.rfind(home, 0) == 0 ? "~" + text.substr(home.size()) : text);
    }
    return texts;
}

void RandomWalk::check() const {
    for (const auto category : allRuleCategories) {
        const auto& facts = factsOf(category);
        const auto records = pointersTo(model_.list(category), [](const auto&) { return true; });
        ASSERT_EQ(onScreen(category), expectedOnScreen(category)) << facts.listKey;
        if (stored_[category]) {
            ASSERT_TRUE(holds(localList(category), records)) << facts.listKey;
        } else {
            // Until its first edit a list stays stored as it was, also when the launch has completed it.
            ASSERT_TRUE(local(facts.listKey) == originals_[category]) << facts.listKey;
        }
        if (!published_[category]) {
            ASSERT_EQ(shared(facts.listKey), PlistValue("(missing)"));
            continue;
        }
        const auto enabled = pointersTo(model_.list(category), isOn);
        ASSERT_TRUE(holds(sharedList(category), enabled)) << facts.listKey;
        if (!facts.enableAllKey.empty()) {
            ASSERT_EQ(local(facts.enableAllKey), PlistValue(enabled.size() == records.size()));
        }
    }
    ASSERT_EQ(platform_.files.namesIn(templateFolder),
        std::vector<std::string>(model_.files.begin(), model_.files.end()));
}

} // namespace tarnwick::testing
