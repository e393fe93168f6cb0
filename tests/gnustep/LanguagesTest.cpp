#include "Files.h"
#include "LanguagesProbe.h"
#include "Probe.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace tarnwick::probe;
using Languages = std::vector<std::string>;

namespace {

void useEnvironment(const char* language, const char* lang) {
    setenv("LANGUAGE", language, 1);
    unsetenv("LC_ALL");
    unsetenv("LC_MESSAGES");
    setenv("LANG", lang, 1);
}

void useDefault(const std::string& key, const std::string& language) {
    writeContent(defaultsFolder() + "/org.halvane.Tarnwick.plist",
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>" + key + "</key><array><string>" +
            language + "</string></array></dict></plist>");
}

const Languages allTables{"de", "en", "es", "fr", "ja", "zh-Hans", "zh-Hant"};

} // namespace

TEST(Languages, ChineseIsTakenByItsCharacters) {
    for (const auto* code : {"zh", "zh_CN.UTF-8", "zh-Hans", "zh-Hans-HK", "zh_SG"}) {
        EXPECT_EQ(languagesForCode(code), (Languages{"zh-Hans", "SimplifiedChinese", "en", "English"}))
            << code;
    }
    for (const auto* code : {"zh_TW.UTF-8", "zh_HK", "zh-Hant-CN", "zh-Hant_MO"}) {
        EXPECT_EQ(languagesForCode(code), (Languages{"zh-Hant", "TraditionalChinese", "en", "English"}))
            << code;
    }
}

TEST(Languages, ARegionDoesNotMatterElsewhere) {
    EXPECT_EQ(languagesForCode("de_AT@euro"), (Languages{"de", "German", "en", "English"}));
    EXPECT_EQ(languagesForCode("C.UTF-8"), (Languages{"en", "English"}));
}

TEST(Languages, AreThoseOfTheShell) {
    useEnvironment("fr:de_CH", "es_ES.UTF-8");
    EXPECT_EQ(languagesAfterStartUp(), (Languages{"fr", "French", "de", "German", "en", "English"}));
}

TEST(Languages, LangCountsWhetherTheSystemHasThatLocaleOrNot) {
    useEnvironment("", "ja_JP.UTF-8");
    EXPECT_EQ(greetingFromTables(allTables), "ja");
}

TEST(Languages, AppleLanguagesComeBeforeTheShells) {
    useDefault("AppleLanguages", "zh-Hant-TW");
    useEnvironment("fr", "fr_FR.UTF-8");
    EXPECT_EQ(greetingFromTables(allTables), "zh-Hant");
}

TEST(Languages, GNUstepsOwnChoiceComesFirst) {
    useDefault("NSLanguages", "es");
    useEnvironment("fr", "fr_FR.UTF-8");
    EXPECT_EQ(greetingFromTables(allTables), "es");
}

TEST(Languages, ATextWithoutTableInTheLanguageIsEnglish) {
    useEnvironment("it", "it_IT.UTF-8");
    EXPECT_EQ(greetingFromTables({"de", "en"}), "en");
}

TEST(Languages, NothingIsWritten) {
    useEnvironment("fr", "");
    EXPECT_EXIT(
        {
            startUp();
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(
        contentOf(defaultsFolder() + "/org.halvane.Tarnwick.plist").find("NSLanguages"), std::string::npos);
    EXPECT_FALSE(exists(defaultsFolder() + "/NSGlobalDomain.plist"));
}
