#include "Pool.h"

#include "platform/PreferenceStore.h"
#include "platform/appkit/Adapters.h"
#include "tests/support/InMemoryPreferences.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarnwick::testing {
namespace {

/// One implementation of the port, and the keys that it was asked to observe.
struct Stores {
    virtual ~Stores() = default;
    virtual PreferenceStores& stores() = 0;
};

struct InMemory final : Stores {
    CallLog log;
    InMemoryPreferences preferences{log};
    PreferenceStores& stores() override { return preferences; }
};

struct UserDefaults final : Stores {
    std::unique_ptr<PreferenceStores> preferences = makePreferenceStores([](std::string_view) {});
    PreferenceStores& stores() override { return *preferences; }
};

using Making = std::function<std::unique_ptr<Stores>()>;
enum class Domain { standard, suite };

class PreferenceStoreContract : public ::testing::TestWithParam<std::tuple<Making, Domain>> {
protected:
    [[nodiscard]] std::unique_ptr<PreferenceStore> open() {
        return std::get<Domain>(GetParam()) == Domain::standard
                   ? stores->stores().openStandardDomain()
                   : stores->stores().openSuite("H7Q2ZK5RX9.org.halvane.Tarnwick");
    }

    Pool pool;
    std::unique_ptr<Stores> stores = std::get<Making>(GetParam())();
};

TEST_P(PreferenceStoreContract, AnAbsentKeyHasNoValue) {
    EXPECT_FALSE(open()->value("absent"));
}

TEST_P(PreferenceStoreContract, EveryKindIsReadAsItWasSet) {
    const PlistValue values[] = {PlistValue("text"), PlistValue(1), PlistValue(true), PlistValue(false),
        PlistValue(2.5), PlistValue(PlistDate{86'400}), PlistValue(PlistData({1, 0, 2})),
        PlistValue(PlistArray{PlistDictionary{{"isEnable", "1"}, {"count", 1}, {"flag", true}}})};
    const auto store = open();
    for (const auto& value : values) {
        store->setValue("kind", value);
        EXPECT_EQ(store->value("kind"), value) << static_cast<int>(value.kind());
    }
}

TEST_P(PreferenceStoreContract, ABooleanAndANumberTakeEachOthersPlace) {
    const auto store = open();
    for (const PlistValue& value :
        {PlistValue(1), PlistValue(true), PlistValue(0), PlistValue(false), PlistValue(1)}) {
        store->setValue("switch", value);
        EXPECT_EQ(store->value("switch"), value);
    }
}

TEST_P(PreferenceStoreContract, AnotherHandleSeesAWriteAtOnce) {
    const auto writer = open();
    const auto reader = open();
    writer->setValue("shared", "now");
    EXPECT_EQ(reader->value("shared"), PlistValue("now"));
    EXPECT_EQ(open()->value("shared"), PlistValue("now"));
}

TEST_P(PreferenceStoreContract, ARemovedValueIsAbsentForEveryHandle) {
    const auto store = open();
    const auto other = open();
    store->setValue("note", "text");
    store->synchronize();
    store->removeValue("note");
    EXPECT_FALSE(store->value("note"));
    EXPECT_FALSE(other->value("note"));
    store->synchronize();
    EXPECT_FALSE(open()->value("note"));
    store->removeValue("note");
    EXPECT_FALSE(store->value("note"));
}

TEST_P(PreferenceStoreContract, SynchronisingChangesNoValue) {
    const auto store = open();
    const PlistValue value(PlistDictionary{{"on", true}, {"one", 1}, {"text", "\u8868"}});
    store->setValue("dictionary", value);
    store->synchronize();
    EXPECT_EQ(store->value("dictionary"), value);
}

const auto inMemory = Making([] { return std::make_unique<InMemory>(); });
const auto userDefaults = Making([] { return std::make_unique<UserDefaults>(); });

std::string nameOf(const ::testing::TestParamInfo<std::tuple<Making, Domain>>& info) {
    return std::get<Domain>(info.param) == Domain::standard ? "StandardDomain" : "Suite";
}

INSTANTIATE_TEST_SUITE_P(InMemory, PreferenceStoreContract,
    ::testing::Combine(::testing::Values(inMemory), ::testing::Values(Domain::standard, Domain::suite)),
    nameOf);
INSTANTIATE_TEST_SUITE_P(UserDefaults, PreferenceStoreContract,
    ::testing::Combine(::testing::Values(userDefaults), ::testing::Values(Domain::standard, Domain::suite)),
    nameOf);

} // namespace
} // namespace tarnwick::testing
