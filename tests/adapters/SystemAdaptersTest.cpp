#include "Pool.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/SystemAdapters.h"
#include "integration/ScriptHelper.h"
#include "platform/Images.h"
#include "platform/PreferenceStore.h"
#include "platform/Process.h"
#include "platform/UserScript.h"
#include "tests/adapters/Waiting.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace tarnwick::testing {
namespace {

class SystemAdaptersTest : public ::testing::Test {
protected:
    /// A file with this content in the test's own folder.
    static std::string file(const std::string& name, const std::string& content) {
        const auto path = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/" + name;
        std::ofstream(path) << content;
        return path;
    }
    static std::string text(const PlistData& data) {
        return {reinterpret_cast<const char*>(data.bytes()), data.size()};
    }

    Pool pool;
};

TEST_F(SystemAdaptersTest, ATaskGivesWhatItsProgramWrote) {
    const auto process = makeProcess();
    EXPECT_EQ(text(process->output("/bin/sh", {"-c", "printf 'a\\0b'"})), std::string("a\0b", 3));
    EXPECT_EQ(text(process->output("/bin/sh", {"-c", "echo lost >/dev/stderr 2>/dev/null; exit 3"})), "");
}

TEST_F(SystemAdaptersTest, ATaskWithALotToSayIsReadToItsEnd) {
    EXPECT_EQ(makeProcess()->output("/bin/sh", {"-c", "head -c 1000000 /dev/zero"}).size(), 1'000'000U);
}

TEST_F(SystemAdaptersTest, AUserScriptFindsEverySettingOnDiskThatWasSetBefore) {
    const auto seen = file("seen", "");
    const auto script = file("script.sh", "cat \"$TARNWICK_DEFAULTS_DIR\"/*.plist >'" + seen + "'\n");
    const auto stores = makePreferenceStores();
    stores->openStandardDomain()->setValue("setJustBefore", "a standard value");
    stores->openSuite("H7Q2ZK5RX9.org.halvane.Tarnwick")->setValue("setJustBefore", "a shared value");
    makeUserScripts()->makeTask(script).task->execute(restartFinderEventDescriptor("initialize"));
    EXPECT_TRUE(
        runLoopUntil([&] { return contentsOfFile(seen).find("a standard value") != std::string::npos; }));
    EXPECT_NE(contentsOfFile(seen).find("a shared value"), std::string::npos);
}

TEST_F(SystemAdaptersTest, DamagedPicturesOfAnyFormatGiveNone) {
    using namespace std::string_view_literals;
    const auto images = makeImages();
    for (const auto text :
        {"P\xff\xff\xff no known format 6\n1 1\n255\nabc"sv, "II*\0\x08\0\0\0\x0a\0 cut off"sv, "MM\0*"sv,
            "\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR cut off"sv, "GIF89a\1\0\1\0\x80\0\0\0\0\0\x60,\0\1\xfa"sv,
            "\xff\xd8\xff\xe4\xe4\xe4\xe4 past the end"sv, "II*\0 again"sv}) {
        EXPECT_EQ(images->fromData(PlistData({text.begin(), text.end()})), nullptr);
        EXPECT_EQ(images->fromFile(file("damaged.png", std::string(text))), nullptr);
    }
}

TEST_F(SystemAdaptersTest, ASmallPictureThatClaimsALotIsNone) {
    using namespace std::string_view_literals;
    const auto images = makeImages();
    const auto header = "II*\0\x08\0\0\0\x03\0"sv;
    const auto wide = "\0\1\4\0\1\0\0\0\2\0\0\x24"sv;
    const auto narrow = "\0\1\4\0\1\0\0\0\2\0\0\0"sv;
    const auto high = "\1\1\4\0\1\0\0\0\2\0\0\0"sv;
    const auto oneSample = "\x15\1\3\0\1\0\0\0\1\0\0\0"sv;
    const auto manySamples = "\x15\1\3\0\1\0\0\0\4\x9b\0\0"sv;
    for (const auto& fields : {std::string(wide).append(high).append(oneSample),
             std::string(narrow).append(high).append(manySamples)}) {
        const auto bytes = std::string(header).append(fields).append(64, '\0');
        EXPECT_EQ(images->fromData(PlistData({bytes.begin(), bytes.end()})), nullptr);
    }
}

TEST_F(SystemAdaptersTest, BytesThatAreNoPictureGiveNone) {
    const auto images = makeImages();
    EXPECT_FALSE(images->fromData(PlistData()));
    EXPECT_FALSE(images->fromData(PlistData({1, 2, 3, 4})));
    EXPECT_FALSE(images->fromFile("/nowhere.png"));
    EXPECT_FALSE(images->fromFile(file("not.png", "\x89PNG\r\n\x1a\n and then nothing")));
}

TEST_F(SystemAdaptersTest, AResourceImageIsNamedWithoutAPath) {
    const auto images = makeImages();
    EXPECT_FALSE(images->named(""));
    EXPECT_FALSE(images->named("../Tarnwick"));
    EXPECT_FALSE(images->named("CustomIcons/App"));
}

} // namespace
} // namespace tarnwick::testing
