#include "tests/support/IntegrationFixture.h"

namespace tarnwick::testing {
namespace {

/// The check at start over a domain that holds only the flag.
class StartUpPromptTest : public IntegrationFixture {
protected:
    StartUpPromptTest() {
        preferences_.local.open(platform_.preferences);
        platform_.log.clear();
    }
    void setFlag(const PlistValue& value) {
        platform_.preferences.local.insert_or_assign("ShownEnableExtensionAlert", value);
    }
    [[nodiscard]] bool flag() const { return preferences_.local.flag("ShownEnableExtensionAlert"); }
    /// How many prompts one check shows.
    std::size_t prompts() {
        platform_.panels.alerts.clear();
        integration_.finderExtension.checkAtStart();
        platform_.runLoop.runMain();
        return platform_.panels.alerts.size();
    }
};

TEST_F(StartUpPromptTest, EnabledWithTheFlagSetShowsNoPrompt) {
    setFlag(true);
    EXPECT_EQ(prompts(), 0U);
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"ask whether the extension is enabled"}));
}

TEST_F(StartUpPromptTest, EnabledWithTheFlagNoOrMissingPromptsAndSetsTheFlag) {
    EXPECT_EQ(prompts(), 1U);
    EXPECT_TRUE(flag());
    setFlag(false);
    EXPECT_EQ(prompts(), 1U);
    EXPECT_TRUE(flag());
}

TEST_F(StartUpPromptTest, DisabledPromptsWhateverTheFlagAndSetsIt) {
    platform_.bundle.extensionEnabled = false;
    for (const auto value : {true, false}) {
        setFlag(value);
        EXPECT_EQ(prompts(), 1U) << value;
        EXPECT_TRUE(flag()) << value;
    }
}

TEST_F(StartUpPromptTest, TheCheckItselfOnlyQueuesThePrompt) {
    integration_.finderExtension.checkAtStart();
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"ask whether the extension is enabled", "queue on main"}));
    EXPECT_FALSE(flag());
}

TEST_F(StartUpPromptTest, BeforeMacOS1014ThePromptLeadsToTheSystemSettingsAndTheExtensionIsNeverAsked) {
    platform_.process.minor = 13;
    platform_.process.patch = 6;
    EXPECT_EQ(prompts(), 1U);
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"queue on main", "alert Enable Extension",
            "open URL x-apple.systempreferences://", "local set ShownEnableExtensionAlert"}));
    EXPECT_EQ(prompts(), 0U);
}

TEST_F(StartUpPromptTest, AnyOtherAnswerThanTheFirstButtonSetsTheFlagAndOpensNothing) {
    for (const auto answer : {0L, 1L, 999L, 1001L, -1000L}) {
        setFlag(false);
        platform_.log.clear();
        platform_.panels.answers = {answer};
        EXPECT_EQ(prompts(), 1U);
        EXPECT_EQ(platform_.log.lines(),
            (std::vector<std::string>{"ask whether the extension is enabled", "queue on main",
                "alert Enable Extension", "local set ShownEnableExtensionAlert"}))
            << answer;
    }
}

} // namespace
} // namespace tarnwick::testing
