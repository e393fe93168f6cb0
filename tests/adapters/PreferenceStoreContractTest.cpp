#include "Contract.h"

#include "adapters/foundation/Adapters.h"
#include "platform/PreferenceStore.h"
#include "tests/adapters/SystemState.h"
#include "tests/support/InMemoryPreferences.h"

namespace tarnwick::testing {
namespace {

class Stores {
public:
    explicit Stores(Implementation implementation) {
        if (implementation == Implementation::overThePlatform) {
            real_ = makePreferenceStores();
        }
    }
    PreferenceStores& port() { return real_ ? *real_ : static_cast<PreferenceStores&>(memory_); }
    /// An administrator sets this key.
    void force(const std::string& key) {
        if (real_) {
            state_.set("forced", PlistArray{key});
        } else {
            memory_.forced = {key};
        }
    }

private:
    CallLog log_;
    InMemoryPreferences memory_{log_};
    std::unique_ptr<PreferenceStores> real_;
    SystemState state_;
};

enum class Domain { standard, suite };

const char* nameOf(Domain domain) {
    return domain == Domain::standard ? "StandardDomain" : "Suite";
}

void PrintTo(Domain domain, std::ostream* stream) {
    *stream << nameOf(domain);
}

class PreferenceStoreContract : public ::testing::TestWithParam<std::tuple<Implementation, Domain>> {
protected:
    [[nodiscard]] std::unique_ptr<PreferenceStore> open() {
        auto& port = stores.port();
        return std::get<Domain>(GetParam()) == Domain::standard
                   ? port.openStandardDomain()
                   : port.openSuite("H7Q2ZK5RX9.org.halvane.Tarnwick");
    }

    Pool pool;
    Stores stores{std::get<Implementation>(GetParam())};
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
    ::testing::Combine(::testing::Values(Implementation::inMemory, Implementation::overThePlatform),
        ::testing::Values(Domain::standard, Domain::suite)),
    [](const auto& info) {
        return nameOf(std::get<Implementation>(info.param)) + nameOf(std::get<Domain>(info.param));
    });

using PreferenceStoresContract = Contract<Stores>;

TEST_P(PreferenceStoresContract, AKeyIsForcedWhileAnAdministratorHasSetIt) {
    EXPECT_FALSE(harness_.port().isForced("arrOfOthers"));
    harness_.force("arrOfOthers");
    EXPECT_TRUE(harness_.port().isForced("arrOfOthers"));
    EXPECT_FALSE(harness_.port().isForced("arrOfOther"));
}

TEST_P(PreferenceStoresContract, ASystemWideStringIsTheApplicationsOwnIfItHasOne) {
    EXPECT_EQ(harness_.port().systemWideString("contractString"), std::nullopt);
    harness_.port().openStandardDomain()->setValue("contractString", "own");
    EXPECT_EQ(harness_.port().systemWideString("contractString"), "own");
    harness_.port().openStandardDomain()->setValue("contractString", PlistArray{"own"});
    EXPECT_EQ(harness_.port().systemWideString("contractString"), std::nullopt);
}

TEST_P(PreferenceStoresContract, TheDomainsAreApart) {
    auto& port = harness_.port();
    port.openStandardDomain()->setValue("apart", 1);
    EXPECT_EQ(port.openSuite("H7Q2ZK5RX9.org.halvane.Tarnwick")->value("apart"), std::nullopt);
    port.openSuite("H7Q2ZK5RX9.org.halvane.Tarnwick")->setValue("apart", 2);
    EXPECT_EQ(port.openStandardDomain()->value("apart"), PlistValue(1));
}

TEST_P(PreferenceStoresContract, ARecordIsLetGoWithTheListThatHadIt) {
    auto& port = harness_.port();
    const auto local = port.openStandardDomain();
    const auto shared = port.openSuite("H7Q2ZK5RX9.org.halvane.Tarnwick");
    std::weak_ptr<const PlistDictionary> record;
    {
        const PlistValue removed(PlistDictionary{{"displayName", "removed"}});
        record = removed.sharedDictionary();
        local->setValue("list", PlistArray{removed});
        shared->setValue("list", PlistArray{removed});
    }
    EXPECT_FALSE(record.expired());
    // As each change does it: stored, then published.
    local->setValue("list", PlistArray{});
    shared->setValue("list", PlistArray{});
    EXPECT_TRUE(record.expired());
}

TARNWICK_BOTH_IMPLEMENTATIONS(PreferenceStoresContract);

} // namespace
} // namespace tarnwick::testing
