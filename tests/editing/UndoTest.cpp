#include "tests/editing/UndoFixture.h"
#include "tests/support/Categories.h"

#include <functional>
#include <ostream>

namespace tarnwick::testing {
namespace {

class UndoTest;

struct Edit {
    const char* name;
    RuleCategory category;
    void (*make)(UndoTest& test);
    const char* step;
    /// The rows selected once it is taken back, and once it is repeated; nothing: none is concerned.
    std::optional<long> before;
    std::optional<long> after;
};

void PrintTo(const Edit& edit, std::ostream* stream) {
    *stream << edit.name;
}

class UndoTest : public UndoFixture, public ::testing::WithParamInterface<Edit> {
public:
    using UndoFixture::add;
    using UndoFixture::enableAll;
    using UndoFixture::remove;

    [[nodiscard]] RuleEditing& editing() { return editing_; }
    void drop(RuleCategory category, std::vector<std::string> paths) {
        std::vector<DroppedItem> items;
        for (auto& path : paths) {
            items.push_back({std::move(path), factsOf(category).source == RuleSource::folders});
        }
        editing_.adding.addDropped(category, items);
    }
    void move(RuleCategory category, long from, long to) {
        editing_.reordering.acceptDrop(category, category, from, to);
    }
    void moveByKey(RuleCategory category, long row, MoveDirection direction) {
        tables_.table(category).selected = row;
        editing_.reordering.moveSelection(category, direction);
    }
    void set(RuleCategory category, long row, std::string_view field, bool on) {
        editing_.toggling.set(category, row, field, on);
    }
    void edit(std::string_view identifier, long row, std::string_view text) {
        editing_.textEditing.endEditing(identifier, row, text);
    }
    void chooseFolder(long row) {
        editing_.pathChoosing.selectPath(RuleCategory::copyFilesTo, row);
        platform_.panels.confirm({"/chosen"});
    }
};

TEST_P(UndoTest, WhatComesBackIsEqualInEveryRespectAsOftenAsOneLikes) {
    const auto before = everything();
    GetParam().make(*this);
    const auto after = everything();
    ASSERT_FALSE(before == after);
    for (int time = 0; time < 3; ++time) {
        undo();
        EXPECT_TRUE(everything() == before) << time;
        EXPECT_EQ(steps(), std::vector<std::string>());
        redo();
        EXPECT_TRUE(everything() == after) << time;
    }
    EXPECT_EQ(steps(), std::vector<std::string>{GetParam().step});
}

TEST_P(UndoTest, TheRowConcernedIsSelectedAndMayBeRemovedAgain) {
    GetParam().make(*this);
    auto& table = tables_.table(GetParam().category);
    const auto expectSelected = [&](std::optional<long> row) {
        const auto expected = row.value_or(2);
        EXPECT_EQ(table.selected, expected);
        EXPECT_EQ(table.canRemove, expected < rows(GetParam().category));
    };
    table.selected = 2;
    table.canRemove = false;
    undo();
    expectSelected(GetParam().before);
    table.selected = 2;
    table.canRemove = false;
    redo();
    expectSelected(GetParam().after);
}

/// The lines without those about files, which stand between storing and reloading, and their note.
std::vector<std::string> withoutFiles(const std::vector<std::string>& lines) {
    std::vector<std::string> others;
    for (const auto& line : lines) {
        const auto isOfFiles =
            !others.empty() && others.back() == "local synchronise" && !line.starts_with("reload ");
        if (!isOfFiles && line != "local set pendingTemplateFiles") {
            others.push_back(line);
        }
    }
    return others;
}

TEST_P(UndoTest, GoingBackAndForthHasTheEffectsOfAnEditedRow) {
    GetParam().make(*this);
    const auto& facts = factsOf(GetParam().category);
    const std::string listKey(facts.listKey);
    for (int time = 0; time < 2; ++time) {
        platform_.log.clear();
        time == 0 ? undo() : redo();
        const auto lines = withoutFiles(platform_.log.lines());
        ASSERT_GE(lines.size(), 6U);
        EXPECT_EQ(lines[0], "local set " + listKey);
        EXPECT_EQ(lines[1], "local synchronise");
        EXPECT_TRUE(lines[2].starts_with("reload "));
        auto published = std::vector<std::string>(lines.begin() + 3, lines.end());
        std::erase(published, "local set " + std::string(facts.enableAllKey));
        std::erase_if(published, [](const auto& line) {
            return line.starts_with("select ") || line.find("able remove ") != std::string::npos;
        });
        EXPECT_EQ(published, (std::vector<std::string>{"shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                                 "shared set " + listKey, "shared synchronise"}));
    }
}

INSTANTIATE_TEST_SUITE_P(Of, UndoTest,
    ::testing::Values(Edit{"AddingATemplate", templates,
                          [](auto& test) { test.add(templates, {"/home/New.txt"}); }, "add New", 3, 4},
        Edit{"AddingTwoTemplates", templates,
            [](auto& test) {
                test.add(templates, {"/home/New.txt", "/home/Other.txt", "/home/Gone.txt"});
            },
            "add", 3, 4},
        Edit{"AddingAFolder", folders, [](auto& test) { test.add(folders, {"/home/Zoo"}); }, "add Zoo", 3, 4},
        Edit{"AddingAPicture", icons, [](auto& test) { test.add(icons, {"/home/Blue.png"}); }, "add Blue.png",
            3, 4},
        Edit{"AddingAnItem", others, [](auto& test) { test.add(others, {"/x/Cut.png"}); }, "add Cut", 6, 7},
        Edit{"DroppingTemplatesIn", templates,
            [](auto& test) {
                test.drop(templates, {"/home/New.txt", "/home/Other.txt"});
            },
            "add", 3, 4},
        Edit{"RemovingATemplate", templates, [](auto& test) { test.remove(templates, 1); }, "remove B", 1, 0},
        Edit{"RemovingAPackage", templates, [](auto& test) { test.remove(templates, 3); }, "remove D", 3, 2},
        Edit{"RemovingAPicture", icons, [](auto& test) { test.remove(icons, 0); }, "remove A", 0, 0},
        Edit{"TurningOn", targets, [](auto& test) { test.set(targets, 3, field::enable, true); }, "turn on D",
            3, 3},
        Edit{"TurningOffWhatWasOnByText", templates,
            [](auto& test) { test.set(templates, 0, field::enable, false); }, "turn off A", 0, 0},
        Edit{"TurningOffWhatHadNoFlag", templates,
            [](auto& test) { test.set(templates, 2, field::enable, false); }, "turn off C", 2, 2},
        Edit{"ShowingInTheMainMenu", templates,
            [](auto& test) { test.set(templates, 1, field::enableMainMenu, true); }, "show in main menu B", 1,
            1},
        Edit{"EnablingAll", templates, [](auto& test) { test.enableAll(templates, true); }, "enable all",
            std::nullopt, std::nullopt},
        Edit{"DisablingAll", icons, [](auto& test) { test.enableAll(icons, false); }, "disable all",
            std::nullopt, std::nullopt},
        Edit{"MovingDown", folders, [](auto& test) { test.move(folders, 0, 2); }, "reorder A", 0, 2},
        Edit{"MovingUp", templates, [](auto& test) { test.move(templates, 3, 1); }, "reorder D", 3, 1},
        Edit{"MovingByKey", icons, [](auto& test) { test.moveByKey(icons, 2, MoveDirection::up); },
            "reorder C", 2, 1},
        Edit{"RenamingATemplate", templates, [](auto& test) { test.edit("NewFileDisplayName", 1, "Letter"); },
            "rename B", 1, 1},
        Edit{"RenamingAPackage", templates, [](auto& test) { test.edit("NewFileDisplayName", 3, "Book"); },
            "rename D", 3, 3},
        Edit{"RenamingAFolder", folders, [](auto& test) { test.edit("commonPathDisplayName", 2, ""); },
            "rename C", 2, 2},
        Edit{"EditingANote", others, [](auto& test) { test.edit("OthersNote", 3, "New"); }, "edit note D", 3,
            3},
        Edit{"ChoosingAFolder", targets, [](auto& test) { test.chooseFolder(2); }, "choose folder C", 2, 2},
        Edit{"ResettingTheTemplates", templates,
            [](auto& test) { test.editing().resetting.reset(templates); }, "reset", std::nullopt,
            std::nullopt},
        Edit{"ResettingThePictures", icons, [](auto& test) { test.editing().resetting.reset(icons); },
            "reset", std::nullopt, std::nullopt}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace tarnwick::testing
