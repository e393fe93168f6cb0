#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sys/stat.h>

namespace tarnwick::gui {
namespace {

std::string folder(const std::string& name) {
    const auto path = sandboxFolder() + "/" + name;
    mkdir(path.c_str(), 0700);
    return path;
}

std::string file(const std::string& name, const std::string& content) {
    const auto path = sandboxFolder() + "/" + name;
    std::ofstream(path) << content;
    return path;
}

TEST(Dropping, FoldersBecomeTargetsAndRememberNoFolder) {
    clickPageButton(Page::copyFilesTo);
    dropFiles(RuleCategory::copyFilesTo, {folder("One"), file("a.txt", "a"), folder("Two")});
    EXPECT_EQ(rowCount(RuleCategory::copyFilesTo), 2);
    EXPECT_EQ(shared("[r['displayName'] for r in d['arrOfCopyFilesTo']]"), "['One', 'Two']");
    EXPECT_EQ(local("'prePathOfSendFilesTo' in d"), "False");
    EXPECT_FALSE(showsText("No folders to copy or move to"));
}

TEST(Dropping, AFolderBecomesACommonPath) {
    clickPageButton(Page::commonPath);
    const auto path = folder("Three");
    dropFiles(RuleCategory::commonPath, {path});
    EXPECT_EQ(shared("[r['realPath'] for r in d['arrOfCommonPath']]"), "['" + path + "']");
}

TEST(Dropping, AFileBecomesATemplate) {
    clickPageButton(Page::createNewFile);
    const auto before = rowCount(RuleCategory::createNewFile);
    dropFiles(RuleCategory::createNewFile, {file("Letter.note", "Dear")});
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), before + 1);
    EXPECT_EQ(shared("[(r['displayName'], r['extension']) for r in d['arrOfCreateNewFile']][-1]"),
        "('Letter', 'note')");
}

TEST(Dropping, APictureBecomesAnIcon) {
    clickPageButton(Page::customIcon);
    const auto before = rowCount(RuleCategory::customIcon);
    dropFiles(RuleCategory::customIcon, {std::string(std::getenv("TARNWICK_PICTURE")), file("b.txt", "b")});
    EXPECT_EQ(rowCount(RuleCategory::customIcon), before + 1);
}

TEST(Dropping, WhatAListDoesNotTakeChangesNothing) {
    clickPageButton(Page::commonPath);
    const auto before = local("d['arrOfCommonPath']");
    dropFiles(RuleCategory::commonPath, {file("c.txt", "c")});
    EXPECT_EQ(local("d['arrOfCommonPath']"), before);
    clickPageButton(Page::others);
    const auto items = rowCount(RuleCategory::others);
    dropFiles(RuleCategory::others, {std::string(std::getenv("TARNWICK_PICTURE"))});
    EXPECT_EQ(rowCount(RuleCategory::others), items);
}

} // namespace
} // namespace tarnwick::gui
