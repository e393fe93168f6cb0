#include "WorkspaceProbe.h"

#include "Files.h"
#include "Probe.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/stat.h>

using namespace tarnwick::probe;

namespace {

/// Programs that write down what they are told, on a path of their own.
class Workspace : public ::testing::Test {
protected:
    Workspace() {
        startUp();
        ::mkdir(programs_.c_str(), 0700);
        makeProgram("opener", 0);
        useOpener(programs_ + "/opener");
        const std::string others = std::getenv("PATH");
        ::setenv("PATH", (programs_ + ":" + others).c_str(), 1);
    }

    void makeProgram(const std::string& name, int status) {
        const auto program = programs_ + "/" + name;
        // Complete as soon as it is there.
        const auto told = programs_ + "/" + name + "-told";
        writeContent(program, "#!/bin/sh\nprintf '%s\\n' \"$@\" >" + told + ".new\nmv " + told + ".new " +
                                  told + "\nexit " + std::to_string(status) + "\n");
        ::chmod(program.c_str(), 0700);
    }
    /// The arguments that the program was given, a line each.
    [[nodiscard]] std::string told(const std::string& name) const {
        const auto file = programs_ + "/" + name + "-told";
        return waitForFile(file) ? contentOf(file) : "nothing";
    }

    std::string programs_ = defaultsFolder() + "/programs";
};

TEST_F(Workspace, OpensAFileInTheDesktopsProgram) {
    EXPECT_TRUE(openFile("/a folder/letter, old.txt"));
    EXPECT_EQ(told("opener"), "/a folder/letter, old.txt\n");
}

TEST_F(Workspace, AsksTheFileManagerToShowAFileByItsAddress) {
    makeProgram("dbus-send", 0);
    EXPECT_TRUE(showInFileManager("/a folder/letter, \xC3\xA9.txt"));
    EXPECT_NE(told("dbus-send")
                  .find("org.freedesktop.FileManager1.ShowItems\n"
                        "array:string:file:///a%20folder/letter%2C%20%C3%A9.txt\nstring:\n"),
        std::string::npos)
        << told("dbus-send");
    EXPECT_FALSE(exists(programs_ + "/opener-told"));
}

TEST_F(Workspace, OpensTheFolderWhereNoFileManagerAnswers) {
    makeProgram("dbus-send", 1);
    EXPECT_TRUE(showInFileManager("/a folder/letter.txt"));
    EXPECT_EQ(told("opener"), "/a folder\n");
}

} // namespace
