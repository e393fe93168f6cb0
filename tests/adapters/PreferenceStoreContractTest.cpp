#include "Pool.h"

#include "adapters/foundation/Adapters.h"
#include "platform/PreferenceStore.h"
#include "tests/support/InMemoryPreferences.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

namespace tarnwick::testing {
namespace {

/// One implementation of the port.
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
    std::unique_ptr<PreferenceStores> preferences = makePreferenceStores();
    PreferenceStores& stores() override { return *preferences; }
};

struct Implementation {
    const char* name;
    std::unique_ptr<Stores> (*make)();
};
enum class Domain { standard, suite };

const char* nameOf(Domain domain) {
    return domain == Domain::standard ? "StandardDomain" : "Suite";
}

void PrintTo(const Implementation& implementation, std::ostream* stream) {
    *stream << implementation.name;
}

void PrintTo(Domain domain, std::ostream* stream) {
    *stream << nameOf(domain);
}

class PreferenceStoreContract : public ::testing::TestWithParam<std::tuple<Implementation, Domain>> {
protected:
    [[nodiscard]] std::unique_ptr<PreferenceStore> open() {
        return std::get<Domain>(GetParam()) == Domain::standard
                   ? stores->stores().openStandardDomain()
                   : stores->stores().openSuite("H7Q2ZK5RX9.org.halvane.Tarnwick");
    }

    Pool pool;
    std::unique_ptr<Stores> stores = std::get<Implementation>(GetParam()).make();
};

TEST_P(PreferenceStoreContract, AnAbsentKeyHasNoValue) {
    EXPECT_FALSE(open()->value("absent"));
}

TEST_P(PreferenceStoreContract, EveryKindIsReadAsItWasSet) {
    const PlistValue values[] = {PlistValue("text"), PlistValue(1), PlistValue(true), PlistValue(false),
        PlistValue(PlistLargeInteger{~std::uint64_t{0}}), PlistValue(2.5), PlistValue(PlistDate{86'400}),
        PlistValue(PlistData({1, 0, 2})),
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

INSTANTIATE_TEST_SUITE_P(Every, PreferenceStoreContract,
    ::testing::Combine(
        ::testing::Values(Implementation{"InMemory",
                              []() -> std::unique_ptr<Stores> { return std::make_unique<InMemory>(); }},
            Implementation{"UserDefaults",
                []() -> std::unique_ptr<Stores> { return std::make_unique<UserDefaults>(); }}),
        ::testing::Values(Domain::standard, Domain::suite)),
    [](const auto& info) {
        return std::string(std::get<Implementation>(info.param).name) + nameOf(std::get<Domain>(info.param));
    });

} // namespace
} // namespace tarnwick::testing
