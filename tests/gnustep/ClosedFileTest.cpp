#include "Files.h"
#include "Probe.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace tarnwick::probe;

namespace {

const std::string suite = "group.test";

std::string suiteFile() {
    return defaultsFolder() + "/" + suite + ".plist";
}

/// A user whom permissions bind, for a scope; the superuser becomes another one meanwhile.
class BoundUser {
public:
    BoundUser() : user_(geteuid()) {
        if (user_ == 0) {
            constexpr uid_t nobody = 65534;
            chmod(libraryFolder().append("/..").c_str(), 0755);
            // The folder of the toolkit's lock, too.
            for (const auto& folder : {defaultsFolder(), defaultsFolder() + "/.lck"}) {
                mkdir(folder.c_str(), 0777);
                chmod(folder.c_str(), 0777);
            }
            EXPECT_EQ(seteuid(nobody), 0);
        }
    }
    ~BoundUser() { EXPECT_EQ(seteuid(user_), 0); }
    BoundUser(const BoundUser&) = delete;
    BoundUser& operator=(const BoundUser&) = delete;

private:
    uid_t user_;
};

/// What a file holds after `use` as a user who may not open it, in a folder where it could be replaced.
template <class Use>
std::string contentAfter(const std::string& path, const Use& use) {
    chmod(path.c_str(), 0);
    {
        const BoundUser user;
        use();
    }
    chmod(path.c_str(), 0600);
    return contentOf(path);
}

bool wasMovedAside(const std::string& path) {
    return exists(path + ".damaged-1");
}

} // namespace

TEST(ClosedFile, OfASuiteIsNeitherReplacedNorMovedAside) {
    setSuiteString(suite, "key", "value");
    ASSERT_TRUE(synchronizeSuite(suite));
    const auto before = contentOf(suiteFile());
    EXPECT_EQ(contentAfter(suiteFile(),
                  [] {
                      const std::string closed = "another value";
                      setSuiteString(suite, "other", closed);
                      EXPECT_FALSE(synchronizeSuite(suite));
                      EXPECT_EQ(suiteString(suite, "other"), closed);
                  }),
        before);
    EXPECT_FALSE(wasMovedAside(suiteFile()));
}

TEST(ClosedFile, OfASuiteIsReadAndWrittenOnceItIsOpen) {
    outputOf(std::string(TARNWICK_SUITE_WRITER) + " " + suite + " theirs value");
    contentAfter(suiteFile(), [] {
        EXPECT_EQ(suiteString(suite, "theirs"), "(none)");
        setSuiteString(suite, "ours", "value");
        EXPECT_FALSE(synchronizeSuite(suite));
    });
    EXPECT_EQ(suiteString(suite, "theirs"), "value");
    EXPECT_TRUE(synchronizeSuite(suite));
    const auto content = contentOf(suiteFile());
    EXPECT_NE(content.find("theirs"), std::string::npos);
    EXPECT_NE(content.find("ours"), std::string::npos);
}

TEST(ClosedFile, OfTheStandardDomainIsNeitherReplacedNorMovedAside) {
    const auto path = defaultsFolder() + "/gnustep_tests.plist";
    setStandardString("key", "value");
    ASSERT_TRUE(synchronizeStandardDomain());
    const auto before = contentOf(path);
    EXPECT_EQ(contentAfter(path,
                  [] {
                      setStandardString("other", "another value");
                      EXPECT_FALSE(synchronizeStandardDomain());
                      EXPECT_EQ(standardString("other"), "another value");
                  }),
        before);
    EXPECT_FALSE(wasMovedAside(path));
}

TEST(ClosedFile, OfTheStandardDomainDoesNotHideWhatHoldsForAllPrograms) {
    const auto path = defaultsFolder() + "/gnustep_tests.plist";
    const std::string content = "{ key = value; }";
    writeContent(path, content);
    writeContent(defaultsFolder() + "/NSGlobalDomain.plist", "{ everywhere = \"yes\"; }");
    EXPECT_EQ(contentAfter(path,
                  [] {
                      EXPECT_EQ(standardString("everywhere"), "yes");
                      EXPECT_EQ(standardString("key"), "(none)");
                      setStandardString("other", "another value");
                      EXPECT_FALSE(synchronizeStandardDomain());
                  }),
        content);
}
