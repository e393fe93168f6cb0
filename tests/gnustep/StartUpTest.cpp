#include "Files.h"
#include "Probe.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

using namespace tarnwick::probe;

namespace {

std::string standardFile() {
    return defaultsFolder() + "/org.halvane.Tarnwick.plist";
}

} // namespace

TEST(StartUp, NamesTheSettingsFileAfterTheApplication) {
    EXPECT_EXIT(
        {
            startUp();
            setStandardString("key", "written at exit");
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_NE(contentOf(standardFile()).find("written at exit"), std::string::npos);
}

TEST(StartUp, MovesADamagedSettingsFileAside) {
    writeContent(standardFile(), "<?xml version=\"1.0\"?><plist><dict><key>cut");
    startUp();
    EXPECT_EQ(contentOf(standardFile() + ".damaged-1"), "<?xml version=\"1.0\"?><plist><dict><key>cut");
    EXPECT_EQ(standardString("cut"), "(none)");
}

TEST(StartUp, MovesAFileAsideWhoseContainersNestTooDeep) {
    std::string text = "{ k = ";
    text.append(100'000, '(').append(100'000, ')').append("; }");
    std::string xml = "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>k</key>";
    for (const auto* tag : {"<array>", "</array>"}) {
        for (int level = 0; level < 100'000; ++level) {
            xml += tag;
        }
    }
    xml += "</dict></plist>";
    writeContent(standardFile(), text);
    startUp();
    EXPECT_EQ(contentOf(standardFile() + ".damaged-1"), text);
    writeContent(standardFile(), xml);
    startUp();
    EXPECT_EQ(contentOf(standardFile() + ".damaged-2"), xml);
}

TEST(StartUp, LeavesAReadableSettingsFileInPlace) {
    writeContent(standardFile(), "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
                                 "<key>key</key><string>value</string></dict></plist>");
    startUp();
    EXPECT_EQ(standardString("key"), "value");
    EXPECT_FALSE(exists(standardFile() + ".damaged-1"));
}

TEST(StartUp, DoesNotWaitForTheLockOfAKilledProgram) {
    const auto lock = defaultsFolder() + "/.lck/.GNUstepDefaults.lck";
    ASSERT_EQ(mkdir((defaultsFolder() + "/.lck").c_str(), 0700), 0);
    ASSERT_EQ(mkdir(lock.c_str(), 0700), 0);
    // Old enough to be left over, and young enough that GNUstep itself would wait.
    const auto fiveSecondsAgo = std::time(nullptr) - 5;
    const utimbuf times = {fiveSecondsAgo, fiveSecondsAgo};
    ASSERT_EQ(utime(lock.c_str(), &times), 0);
    const auto begin = std::chrono::steady_clock::now();
    startUp();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(8));
    EXPECT_FALSE(exists(lock));
}

TEST(StartUp, RemovesTheLockOfAKilledProgramFromTheNamesOfPorts) {
    auto lock = defaultsFolder() + "/../tmp/GNUstepSecure" + std::to_string(geteuid());
    ASSERT_EQ(mkdir(lock.c_str(), 0700), 0);
    for (const auto* part : {"/NSMessagePort", "/names", "/lock"}) {
        lock += part;
        ASSERT_EQ(mkdir(lock.c_str(), 0700), 0);
    }
    const auto fiveSecondsAgo = std::time(nullptr) - 5;
    const utimbuf times = {fiveSecondsAgo, fiveSecondsAgo};
    ASSERT_EQ(utime(lock.c_str(), &times), 0);
    startUp();
    EXPECT_FALSE(exists(lock));
}

TEST(StartUp, WaitsShortlyForALockThatIsYoung) {
    const auto lock = defaultsFolder() + "/.lck/.GNUstepDefaults.lck";
    ASSERT_EQ(mkdir((defaultsFolder() + "/.lck").c_str(), 0700), 0);
    ASSERT_EQ(mkdir(lock.c_str(), 0700), 0);
    const auto begin = std::chrono::steady_clock::now();
    startUp();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
    EXPECT_FALSE(exists(lock));
}

TEST(StartUp, WritesEmojiAndWhatLooksLikeAnEscapeAsTheyAre) {
    const std::string text = "\U0001F5C2\U0001F468\u200D\U0001F469 \\UD83D \\ud83d\\uddc2 \\U";
    EXPECT_EXIT(
        {
            startUp();
            setStandardString("key", text);
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_NE(contentOf(standardFile()).find(text), std::string::npos) << contentOf(standardFile());
}

TEST(StartUp, KeepsTheLookOfTheProgramWhateverIsSetForAllPrograms) {
    writeContent(defaultsFolder() + "/NSGlobalDomain.plist",
        "{ NSFontSize = 18; NSFont = DejaVuSerif; NSMenuInterfaceStyle = NSMacintoshInterfaceStyle; "
        "NSInterfaceStyleDefault = NSNextStepInterfaceStyle; GSFontHinting = 17; GSAppOwnsMiniwindow = YES; "
        "GSMouseScrollMultiplier = 9; }");
    startUp();
    EXPECT_EQ(standardString("NSFontSize"), "13");
    EXPECT_EQ(standardString("NSFont"), "Inter-Regular");
    EXPECT_EQ(standardString("NSMenuInterfaceStyle"), "NSWindows95InterfaceStyle");
    EXPECT_EQ(standardString("NSScrollViewInterfaceStyle"), "NSMacintoshInterfaceStyle");
    EXPECT_EQ(standardString("GSFontHinting"), "33");
    EXPECT_EQ(standardString("GSAppOwnsMiniwindow"), "NO");
    EXPECT_EQ(standardString("GSMouseScrollMultiplier"), "9");
}

TEST(StartUp, LeavesPicturesToTheBitmapReaderAlone) {
    startUp();
    EXPECT_EQ(imageReaders(), std::vector<std::string>{"NSBitmapImageRep"});
    const auto libraries = contentOf("/proc/self/maps");
    EXPECT_NE(libraries.find("libMagickCore"), std::string::npos);
    EXPECT_EQ(libraries.find("/coders/"), std::string::npos);
}
