#include "tests/allocations/AllocationCount.h"
#include "tests/support/LongList.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

constexpr auto category = RuleCategory::customIcon;
constexpr std::size_t smallImage = 16;
constexpr std::size_t largeImage = 1024 * 1024;

/// The controller over the in-memory platform, with a long list.
class LongList : public SettingsFixture {
public:
    LongList(std::size_t records, std::size_t imageBytes) : list_(makeLongList(records, imageBytes)) {
        platform_.preferences.local.insert_or_assign(std::string(factsOf(category).listKey), list_.toPlist());
    }
    using SettingsFixture::launch;
    using SettingsFixture::localList;
    using SettingsFixture::sharedList;

    [[nodiscard]] SettingsController& controller() { return controller_; }
    [[nodiscard]] const RuleList& original() const { return list_; }
    [[nodiscard]] long rows() const { return static_cast<long>(list_.size()); }
    [[nodiscard]] long middleRow() const { return rows() / 2 + 1; }

    void TestBody() override {}

private:
    RuleList list_;
};

struct Operation {
    const char* name;
    void (*run)(LongList& list);
};

void PrintTo(const Operation& operation, std::ostream* stream) {
    *stream << operation.name;
}

void launch(LongList& list) {
    list.launch();
}

void toggle(LongList& list) {
    list.controller().set(RuleCategory::customIcon, list.middleRow(), field::enable, false);
}

void enableAll(LongList& list) {
    list.controller().enableAll(RuleCategory::customIcon);
}

void reorder(LongList& list) {
    list.controller().acceptDrop(category, category, 0, list.middleRow());
}

void rename(LongList& list) {
    list.controller().textEdited("CustomIconName", list.middleRow(), "Another name");
}

void buildRows(LongList& list) {
    for (long row = 0; row < list.rows(); ++row) {
        for (const auto* column : {"Enable", "Icon", "CustomIconName", "Size"}) {
            (void)list.controller().rows().cell(category, column, row);
        }
    }
}

class OperationTest : public ::testing::TestWithParam<Operation> {
protected:
    /// What the operation takes, on a list that has been through it once: the log's own room is made then.
    static Allocations costOf(std::size_t records, std::size_t imageBytes) {
        LongList list(records, imageBytes);
        list.launch();
        GetParam().run(list);
        return allocationsOf([&list] { GetParam().run(list); });
    }
};

TEST_P(OperationTest, AllocatesTheSameHoweverLargeTheImagesAre) {
    EXPECT_EQ(costOf(1000, largeImage), costOf(1000, smallImage));
}

TEST_P(OperationTest, AllocatesAtMostInProportionToTheRecords) {
    const auto one = costOf(1000, smallImage);
    const auto ten = costOf(10000, smallImage);
    EXPECT_LE(ten.count, one.count * 10);
    EXPECT_LE(ten.bytes, one.bytes * 10);
}

INSTANTIATE_TEST_SUITE_P(Allocations, OperationTest,
    ::testing::Values(Operation{"Launch", launch}, Operation{"Toggle", toggle},
        Operation{"EnableAll", enableAll}, Operation{"Reorder", reorder}, Operation{"Rename", rename},
        Operation{"BuildRows", buildRows}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ToggleAllocations, AreAsManyForTenThousandRecordsAsForTen) {
    const auto costOf = [](std::size_t records) {
        LongList list(records, smallImage);
        list.launch();
        toggle(list);
        return allocationsOf([&list] { toggle(list); });
    };
    EXPECT_EQ(costOf(10000).count, costOf(10).count);
}

TEST(SharedImages, AreOneBufferInTheListAndInBothStoresAfterAnEdit) {
    LongList list(1000, largeImage);
    list.launch();
    toggle(list);
    rename(list);
    const auto bytesOf = [](const PlistValue& record) {
        return RuleRecord(record.sharedDictionary()).data(field::icon).bytes();
    };
    const auto* original = list.original()[0].data(field::icon).bytes();
    ASSERT_NE(original, nullptr);
    ASSERT_EQ(list.localList(category).size(), 1000U);
    ASSERT_EQ(list.sharedList(category).size(), 899U);
    for (const auto& record : list.localList(category)) {
        EXPECT_EQ(bytesOf(record), original);
    }
    for (const auto& record : list.sharedList(category)) {
        EXPECT_EQ(bytesOf(record), original);
    }
}

} // namespace
} // namespace tarnwick::testing
