#include "ui/MenuPreview.h"
#include "tests/support/LongList.h"
#include "tests/support/PrefsFixture.h"
#include "ui/RuleRows.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

using Kind = PreviewItem::Kind;
using Texts = std::vector<std::string>;

class MenuPreviewTest : public PrefsFixture {
protected:
    [[nodiscard]] std::vector<PreviewItem> items() const { return preview_.items(); }
    static Texts titlesOf(const std::vector<PreviewItem>& items) {
        Texts titles;
        for (const auto& item : items) {
            titles.push_back(item.kind == Kind::separator ? "-" : item.title);
        }
        return titles;
    }
    /// Nothing when there is no such section.
    [[nodiscard]] std::optional<PreviewItem> section(const std::string& title) const {
        for (const auto& item : items()) {
            if (item.kind == Kind::section && item.title == title) {
                return item;
            }
        }
        return std::nullopt;
    }
    /// The section's own, or for further items those of the menu itself.
    [[nodiscard]] std::vector<PreviewItem> rulesOf(RuleCategory category, const std::string& title) const {
        std::vector<PreviewItem> found;
        const auto all = title.empty() ? items() : section(title).value_or(PreviewItem{}).items;
        std::copy_if(all.begin(), all.end(), std::back_inserter(found),
            [category](const auto& item) { return item.kind == Kind::rule && item.category == category; });
        return found;
    }
    /// What the section shows is what publishing writes at this moment, record for record.
    void expectPublished(RuleCategory category, const std::string& title) {
        PlistArray shown;
        for (const auto& item : rulesOf(category, title)) {
            shown.push_back(list(category)[item.row].toPlist());
        }
        preferences_.publisher.publish(category);
        EXPECT_TRUE(shown == sharedList(category)) << title;
    }
    void expectAllPublished() {
        expectPublished(RuleCategory::createNewFile, "New File");
        expectPublished(RuleCategory::copyFilesTo, "Copy to");
        expectPublished(RuleCategory::copyFilesTo, "Move to");
        expectPublished(RuleCategory::commonPath, "Common Folders");
        expectPublished(RuleCategory::customIcon, "Custom Icons");
        expectPublished(RuleCategory::others, "");
    }
    static RuleRecord folder(const char* path, PlistValue enable) {
        return makeRecord({{"enable", std::move(enable)}, {"realPath", path}, {"displayName", ""}});
    }

    RuleRows rows_{preferences_.lists, platform_.folders, platform_.bundle, platform_.images};
    MenuPreview preview_{
        preferences_.lists, preferences_.local, rows_, platform_.folders, platform_.bundle, platform_.images};
};

TEST_F(MenuPreviewTest, AFreshMenuHasItsSectionsThenTheFurtherItemsThenWhoArrangesThem) {
    load();
    const auto titles = titlesOf(items());
    const Texts head{"New File", "Copy to", "Move to", "Common Folders", "Custom Icons", "-", "Cut"};
    EXPECT_EQ(Texts(titles.begin(), titles.begin() + 7), head);
    const Texts foot{"-", "The Finder decides how this is arranged"};
    EXPECT_EQ(Texts(titles.end() - 2, titles.end()), foot);
    EXPECT_EQ(items().back().kind, Kind::remark);
    expectAllPublished();
}

TEST_F(MenuPreviewTest, TitlesAreThoseOfTheListsAndNotesAreLeftOut) {
    platform_.bundle.texts = {{"Downloads", "Herunterladen"}, {"Cut", "Ausschneiden"}, {"Copy to", "Nach"}};
    storeList(RuleCategory::copyFilesTo, {folder("/Users/anna/Downloads", 1), folder("/a/b", 1)});
    load();
    EXPECT_EQ(titlesOf(section("Nach").value_or(PreviewItem{}).items), (Texts{"Herunterladen", "b"}));
    EXPECT_EQ(rulesOf(RuleCategory::others, "").front().title, "Ausschneiden");
}

TEST_F(MenuPreviewTest, SectionsThatAreSwitchedOffAreNotThere) {
    load();
    for (const auto& [key, title] : {std::pair{"enableCopyFilesTo", "Copy to"},
             std::pair{"enableMoveFilesTo", "Move to"}, std::pair{"enableCommonPath", "Common Folders"}}) {
        EXPECT_TRUE(section(title)) << title;
        preferences_.local.set(key, false);
        EXPECT_FALSE(section(title)) << title;
    }
}

TEST_F(MenuPreviewTest, AnEmptySectionSaysSo) {
    load();
    const auto empty = section("Common Folders").value_or(PreviewItem{}).items;
    ASSERT_EQ(titlesOf(empty), Texts{"Nothing is offered here"});
    EXPECT_EQ(empty.front().kind, Kind::remark);
    list(RuleCategory::others).assign({});
    const auto titles = titlesOf(items());
    EXPECT_EQ(std::count(titles.begin(), titles.end(), "No further items are offered"), 1);
}

TEST_F(MenuPreviewTest, TemplatesOfTheMainMenuStandAtItsHeadAndInTheirSection) {
    load();
    auto& templates = list(RuleCategory::createNewFile);
    auto records = templates.records();
    records[1] = records[1].with("enableMainMenu", 1).with("enable", 1);
    records[2] = records[2].with("enableMainMenu", 1).with("enable", 0);
    templates.assign(records);
    const auto titles = titlesOf(items());
    EXPECT_EQ(Texts(titles.begin(), titles.begin() + 3), (Texts{"RTF", "-", "New File"}));
    EXPECT_EQ(items().front().row, 1U);
    expectPublished(RuleCategory::createNewFile, "New File");
}

TEST_F(MenuPreviewTest, IconsComeFromRecordsAndSharedFoldersWhereTheSwitchIsOn) {
    storeList(RuleCategory::copyFilesTo, {folder("/a", 1)});
    platform_.images.pictureFiles = {{"/container/Templates/FunctionIcon/copyFilesTo.png", "tiff of section"},
        {"/container/Templates/CreateNewFile/txt.png", "tiff of txt"}};
    load();
    const auto iconOf = [this](const PreviewItem& item) { return textOf(preview_.icon(item)); };
    EXPECT_EQ(iconOf(section("Copy to").value_or(PreviewItem{})), "tiff of section");
    EXPECT_EQ(iconOf(rulesOf(RuleCategory::copyFilesTo, "Copy to").front()), "icon of /a");
    EXPECT_EQ(iconOf(rulesOf(RuleCategory::createNewFile, "New File").front()), "tiff of txt");
    EXPECT_EQ(iconOf(rulesOf(RuleCategory::customIcon, "Custom Icons").front()), "tiff of App");
    preferences_.local.set("enableIconOfSendFilesTo", false);
    EXPECT_EQ(iconOf(section("Copy to").value_or(PreviewItem{})), "");
    EXPECT_EQ(iconOf(rulesOf(RuleCategory::copyFilesTo, "Copy to").front()), "");
    EXPECT_EQ(iconOf(items().back()), "");
}

TEST_F(MenuPreviewTest, OddListsAreShownAsTheyArePublished) {
    const auto odd = [](const char* key, PlistValue value) {
        return makeRecord({{"enable", "1"}, {key, std::move(value)}});
    };
    storeList(RuleCategory::copyFilesTo,
        {folder("/a", " +01"), folder("/b", "0"), folder("/c", true), folder("/d", false), folder("/e", 7.5),
            folder("/f", PlistArray{1}), folder("/g", "yes"), folder("", 1), odd("realPath", 5)});
    storeList(RuleCategory::commonPath, {makeRecord({}), makeRecord({{"enable", 1}})});
    storeList(RuleCategory::customIcon, {odd("icon", "no data"), odd("displayName", PlistDictionary{})});
    storeList(RuleCategory::others,
        {odd("Action", "Nobody knows this"), makeRecord({{"Action", "Change to QR Code"}, {"enable", 0}}),
            odd("displayName", ""), odd("Action", 3)});
    platform_.preferences.local.insert_or_assign("arrOfCreateNewFile",
        PlistArray{"no record", 5, PlistDictionary{{"enable", "1"}, {"displayName", ""}}, PlistArray{}});
    platform_.files.createFolder("/container/Templates/CreateNewFile");
    load();
    expectAllPublished();
    EXPECT_EQ(rulesOf(RuleCategory::copyFilesTo, "Copy to").size(), 6U);
    EXPECT_EQ(rulesOf(RuleCategory::createNewFile, "New File").size(), 1U);
}

TEST_F(MenuPreviewTest, TenThousandRulesAreAllThere) {
    load();
    list(RuleCategory::customIcon).assign(makeLongList(10'000, 64).records());
    expectPublished(RuleCategory::customIcon, "Custom Icons");
    EXPECT_EQ(rulesOf(RuleCategory::customIcon, "Custom Icons").size(), 9'000U);
}

TEST_F(MenuPreviewTest, LookingChangesNothingAndReadsNeitherSuiteNorFile) {
    load();
    const auto local = platform_.preferences.local;
    const auto shared = platform_.preferences.shared;
    platform_.log.clear();
    for (const auto& item : items()) {
        static_cast<void>(preview_.icon(item));
    }
    EXPECT_TRUE(platform_.log.lines().empty());
    EXPECT_TRUE(platform_.preferences.local == local);
    EXPECT_TRUE(platform_.preferences.shared == shared);
    EXPECT_TRUE(platform_.files.asked.empty());
}

TEST_F(MenuPreviewTest, WhatTheSuiteHoldsIsOfNoConsequence) {
    load();
    const auto before = items();
    platform_.preferences.shared.clear();
    EXPECT_TRUE(items() == before);
}

} // namespace
} // namespace tarnwick::testing
