#include "tests/transfer/Machine.h"

namespace tarnwick::testing {
namespace {

class RoundTripTest : public ::testing::TestWithParam<PreparedState> {};

/// Without what no two files have in common, and with empty lists for those that are absent.
PlistDictionary comparable(PlistDictionary document) {
    document.erase("version");
    document.erase("date");
    return withEmptyLists(std::move(document));
}

TEST_P(RoundTripTest, WhatIsImportedElsewhereIsExportedThereAgain) {
    Machine first(GetParam());
    const auto document = first.exported();
    Machine second;
    second.launch();
    second.import(document);
    EXPECT_EQ(second.lastAlert().messageText, "Import these settings?");
    EXPECT_EQ(PlistValue(comparable(second.exported())), PlistValue(comparable(document)));
}

TEST_P(RoundTripTest, TheTemplateFolderHoldsWhatTheFileSaysAndNothingElse) {
    Machine first(GetParam());
    const auto document = first.exported();
    Machine second;
    second.launch();
    second.import(document);
    EXPECT_EQ(second.platform.contents.readTree("/container/Templates/CreateNewFile"),
        document.at("templateFiles"));
    EXPECT_EQ(second.platform.files.namesIn("/container/Templates"),
        (std::vector<std::string>{"CreateNewFile", "FunctionIcon", "OthersMenuItemIcon"}));
}

TEST_P(RoundTripTest, EachListIsStoredAndItsEnabledRecordsArePublished) {
    Machine first(GetParam());
    const auto document = comparable(first.exported());
    Machine second;
    second.launch();
    second.import(document);
    const auto& stored = second.platform.preferences.local;
    for (const auto category : allRuleCategories) {
        const std::string key(factsOf(category).listKey);
        EXPECT_EQ(stored.at(key), document.at(key));
        std::vector<RuleRecord> records;
        for (const auto& element : *document.at(key).array()) {
            records.emplace_back(element.sharedDictionary());
        }
        EXPECT_EQ(second.platform.preferences.shared.at(key), RuleList(category, records).enabledToPlist());
        EXPECT_EQ(second.window.numberOfRows(category), static_cast<long>(records.size()));
    }
    EXPECT_EQ(stored.count("pendingTemplateFiles"), 0U);
}

TEST_P(RoundTripTest, TheNextStartTakesItAsItIs) {
    Machine first(GetParam());
    Machine second;
    second.launch();
    second.import(first.exported());
    const auto before = second.exported();
    second.launch();
    auto after = second.exported();
    for (const auto category : {RuleCategory::customIcon, RuleCategory::others}) {
        const std::string key(factsOf(category).listKey);
        if (before.at(key) == PlistValue(PlistArray())) {
            EXPECT_NE(after.at(key), PlistValue(PlistArray())) << "is refilled";
            after.at(key) = PlistArray();
        }
    }
    EXPECT_EQ(after.at("templateFiles"), before.at("templateFiles"));
    for (const auto category : allRuleCategories) {
        EXPECT_EQ(after.at(std::string(factsOf(category).listKey)),
            before.at(std::string(factsOf(category).listKey)));
    }
}

INSTANTIATE_TEST_SUITE_P(Of, RoundTripTest, ::testing::ValuesIn(preparedStates()),
    [](const auto& info) { return info.param.name; });

} // namespace
} // namespace tarnwick::testing
