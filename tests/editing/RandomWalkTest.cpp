#include "tests/support/SettingsFixture.h"

#include <random>
#include <set>

namespace tarnwick::testing {
namespace {

constexpr int stepsPerWalk = 1500;

/// What a step did to the number of records.
struct Growth {
    RuleCategory category;
    long added = 0;
};

/// Thousands of random edits through the controller, with everything that must always hold looked at after each.
class RandomWalkTest : public SettingsFixture, public ::testing::WithParamInterface<unsigned> {
protected:
    RandomWalkTest() : random_(GetParam()) {
        launch();
        for (const auto category : allRuleCategories) {
            counts_[static_cast<std::size_t>(category)] = controller_.numberOfRows(category);
        }
    }

    long pick(long below) { return below <= 0 ? -1 : std::uniform_int_distribution<long>(0, below - 1)(random_); }
    bool flip() { return pick(2) == 1; }

    Growth step() {
        const auto category = allRuleCategories[static_cast<std::size_t>(pick(5))];
        switch (pick(10)) {
        case 0:
            return add(category);
        case 1:
            return remove(category);
        case 2:
            return reset(category);
        case 3:
        case 4:
            toggle(category);
            break;
        case 5:
            enableAll(category);
            break;
        case 6:
        case 7:
            controller_.acceptDrop(category, category, pick(rows(category) + 1), pick(rows(category) + 2));
            break;
        case 8:
            editText(category);
            break;
        default:
            choosePath();
        }
        return {category, 0};
    }

    void check(const Growth& growth) {
        auto& count = counts_[static_cast<std::size_t>(growth.category)];
        count += growth.added;
        touched_.insert(growth.category);
        for (const auto category : allRuleCategories) {
            const auto index = static_cast<std::size_t>(category);
            ASSERT_EQ(rows(category), counts_[index]) << "a record was lost or doubled";
            ASSERT_EQ(window_.tables[index].rows, rows(category)) << "the table is stale";
            if (touched_.count(category) != 0) {
                checkStores(category);
            }
        }
        checkTemplates();
    }

private:
    [[nodiscard]] long rows(RuleCategory category) const { return controller_.numberOfRows(category); }

    /// The stored list is what the table shows, the suite its enabled records in order.
    void checkStores(RuleCategory category) {
        if (!isStored(local(factsOf(category).listKey))) {
            ASSERT_EQ(rows(category), 0) << "a list that was never stored has records";
            return;
        }
        const auto& stored = localList(category);
        ASSERT_EQ(static_cast<long>(stored.size()), rows(category));
        PlistArray enabled;
        for (const auto& element : stored) {
            if (RuleRecord(element.sharedDictionary()).isEnabled()) {
                enabled.push_back(element);
            }
        }
        ASSERT_TRUE(isStored(shared(factsOf(category).listKey)));
        ASSERT_EQ(sharedList(category), enabled);
    }

    [[nodiscard]] static bool isStored(const PlistValue& value) { return value.array() != nullptr; }

    /// Each template has its file: no step of this walk gives two records one file name.
    void checkTemplates() {
        const auto files = platform_.files.namesIn("/container/Templates/CreateNewFile");
        for (const auto& element : localList(RuleCategory::createNewFile)) {
            const RuleRecord record(element.sharedDictionary());
            const auto name = std::string(record.text("displayName")) + "." + std::string(record.text("extension"));
            ASSERT_EQ(files.count(name), 1U) << name;
        }
    }

    std::string freshName() { return "N" + std::to_string(++names_); }

    Growth add(RuleCategory category) {
        const auto before = rows(category);
        const auto name = freshName();
        switch (category) {
        case RuleCategory::createNewFile:
            platform_.files.files["/home/" + name + ".txt"] = name;
            controller_.addCreateNewFileRule();
            break;
        case RuleCategory::copyFilesTo:
            controller_.addSendFilesToRule();
            break;
        case RuleCategory::commonPath:
            controller_.addCommonPathRule();
            break;
        case RuleCategory::customIcon:
            platform_.images.pictureFiles["/home/" + name + ".txt"] = "tiff " + name;
            controller_.addCustomIconRule();
            break;
        case RuleCategory::others:
            controller_.addOthersRule();
            break;
        }
        if (flip()) {
            platform_.openPanel.cancel();
            EXPECT_EQ(rows(category), before);
            return {category, 0};
        }
        platform_.openPanel.choose({"/home/" + name + ".txt"});
        return {category, 1};
    }

    Growth remove(RuleCategory category) {
        auto& table = window_.table(category);
        table.selected = pick(rows(category) + 1) - 1;
        const auto removed = table.selected >= 0 ? -1 : 0;
        switch (category) {
        case RuleCategory::createNewFile:
            controller_.removeCreateNewFileRule();
            break;
        case RuleCategory::copyFilesTo:
            controller_.removeCopyFilesToRule();
            break;
        case RuleCategory::commonPath:
            controller_.removeCommondPathRule();
            break;
        case RuleCategory::customIcon:
            controller_.removeCustomIconRule();
            break;
        case RuleCategory::others:
            controller_.removeOthersRule();
            break;
        }
        return {category, removed};
    }

    Growth reset(RuleCategory category) {
        const auto before = rows(category);
        if (pick(8) != 0) {
            return {category, 0};
        }
        if (category == RuleCategory::createNewFile) {
            controller_.resetCreateNewFileRule();
        } else if (category == RuleCategory::copyFilesTo) {
            controller_.resetCopyFilesToRule();
        } else if (category == RuleCategory::customIcon) {
            controller_.resetCustomIconRule();
        } else if (category == RuleCategory::others) {
            controller_.resetOthersRule();
        }
        constexpr std::array<long, 5> factoryCounts{15, 4, 0, 20, 18};
        const auto factory = factoryCounts[static_cast<std::size_t>(category)];
        return {category, category == RuleCategory::commonPath ? 0 : factory - before};
    }

    void toggle(RuleCategory category) {
        const auto row = pick(rows(category) + 2) - 1;
        const auto on = flip();
        controller_.onOffcheckedStateChangedOfCreateNewFile(category == RuleCategory::createNewFile ? row : -1, on);
        controller_.onOffcheckedStateChangedOfCopyTo(category == RuleCategory::copyFilesTo ? row : -1, on);
        controller_.onOffcheckedStateChangedOfCustomIcon(category == RuleCategory::customIcon ? row : -1, on);
        controller_.onOffcheckedStateChangedOfOthers(category == RuleCategory::others ? row : -1, on);
    }

    void enableAll(RuleCategory category) {
        const auto key = factsOf(category).enableAllKey;
        if (key.empty() || pick(4) != 0) {
            return;
        }
        platform_.preferences.userSets(key, flip());
        if (category == RuleCategory::createNewFile) {
            controller_.enableAllOfCreateNewFilesClick();
        } else if (category == RuleCategory::customIcon) {
            controller_.enableAllOfCustomIconClick();
        } else {
            controller_.enableAllOfOthersClick();
        }
    }

    void editText(RuleCategory category) {
        constexpr std::array identifiers{
            "NewFileDisplayName", "Note", "commonPathDisplayName", "CustomIconName", "OthersNote"};
        EXPECT_TRUE(controller_.controlTextShouldEndEditing(
            identifiers[static_cast<std::size_t>(category)], pick(rows(category) + 2) - 1, freshName()));
    }

    void choosePath() {
        controller_.selectPath(pick(rows(RuleCategory::copyFilesTo) + 2) - 1);
        platform_.openPanel.choose({"/chosen/" + freshName()});
    }

    std::mt19937 random_;
    std::array<long, 5> counts_{};
    std::set<RuleCategory> touched_;
    int names_ = 0;
};

TEST_P(RandomWalkTest, KeepsStoresTablesAndTemplateFilesInStepWithTheLists) {
    for (int number = 0; number < stepsPerWalk; ++number) {
        check(step());
        if (HasFatalFailure()) {
            FAIL() << "at step " << number;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalkTest, ::testing::Values(1U, 7U, 42U, 1234U));

} // namespace
} // namespace tarnwick::testing
