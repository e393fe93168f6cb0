#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Panels.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace tarnwick::gui {
namespace {

std::string fileNamed(const std::string& name) {
    return sandboxFolder() + "/" + name + ".plist";
}

/// What Python makes of an expression over a file, in which `d` is its dictionary.
std::string inFile(const std::string& path, const std::string& expression) {
    const auto program =
        "import plistlib; d = plistlib.load(open('" + path + "', 'rb')); print(" + expression + ")";
    std::string output;
    std::array<char, 256> part{};
    auto* pipe = popen(("python3 -c \"" + program + "\" 2>&1").c_str(), "r");
    while (pipe && std::fgets(part.data(), part.size(), pipe)) {
        output += part.data();
    }
    pclose(pipe);
    return output.substr(0, output.find('\n'));
}

void exportTo(const std::string& path) {
    saveInNextPanel(path);
    sendAction("exportSettings:");
    ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(path); }));
}

TEST(Transfer, TheSettingsAreExportedWithTheirKinds) {
    const auto path = fileNamed("kinds");
    exportTo(path);
    EXPECT_EQ(inFile(path, "sorted(d)"), "['application', 'arrOfCreateNewFile', 'arrOfCustomIcon', "
                                         "'arrOfOthers', 'date', 'format', 'switches', "
                                         "'templateFiles', 'version']");
    EXPECT_EQ(
        inFile(path, "(d['format'], type(d['date']).__name__, len(d['switches']))"), "(1, 'datetime', 14)");
    EXPECT_EQ(inFile(path, "d['switches']['enableCommonPath']"), "True");
    EXPECT_EQ(inFile(path, "[d['arrOfCreateNewFile'][0]['enable'], d['arrOfCustomIcon'][0]['enable']]"),
        "['1', 1]");
    EXPECT_EQ(inFile(path, "(len(d['templateFiles']), type(d['templateFiles']['TXT.txt']).__name__)"),
        "(30, 'bytes')");
}

TEST(Transfer, TwoForeignReadersSeeTheSameInAnExportedFile) {
    const auto path = fileNamed("foreign");
    exportTo(path);
    const auto binary = sandboxFolder() + "/foreign.bin";
    ASSERT_EQ(std::system(("plistutil -f bin -i '" + path + "' -o '" + binary + "'").c_str()), 0);
    // Python takes 1 and True for equal.
    EXPECT_EQ(inFile(path, "repr(d) == repr(plistlib.load(open('" + binary + "', 'rb')))"), "True");
}

TEST(Transfer, WhatWasExportedIsImportedAgain) {
    const auto path = fileNamed("again");
    exportTo(path);
    const auto before = local("d['arrOfCreateNewFile']");
    clickPageButton(Page::createNewFile);
    clickCell(RuleCategory::createNewFile, 0, "Extension");
    press(Key::deleteKey);
    ASSERT_TRUE(waitUntil([&] { return rowCount(RuleCategory::createNewFile) == 14; }));
    EXPECT_EQ(containerFolder("Templates/CreateNewFile").find("'TXT.txt'"), std::string::npos);
    chooseInNextPanel(path);
    pressInNextAlert("Import");
    sendAction("importSettings:");
    ASSERT_TRUE(waitUntil([&] { return rowCount(RuleCategory::createNewFile) == 15; }));
    EXPECT_EQ(lastAlertText(), "Import these settings?");
    EXPECT_EQ(local("d['arrOfCreateNewFile']"), before);
    EXPECT_EQ(cellText(RuleCategory::createNewFile, 0, "NewFileDisplayName"), "TXT");
    EXPECT_NE(containerFolder("Templates/CreateNewFile").find("'TXT.txt'"), std::string::npos);
    EXPECT_EQ(local("'pendingTemplateFiles' in d"), "False");
}

TEST(Transfer, ADamagedFileIsRefusedInItsWords) {
    const auto path = fileNamed("damaged");
    std::ofstream(path) << "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>";
    const auto before = local("sorted(d)");
    chooseInNextPanel(path);
    pressInNextAlert("OK");
    sendAction("importSettings:");
    ASSERT_TRUE(
        waitUntil([&] { return lastAlertText() == "Nothing was imported, and nothing has changed."; }));
    EXPECT_EQ(local("sorted(d)"), before);
}

} // namespace
} // namespace tarnwick::gui
