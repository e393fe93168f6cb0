#include "DiskWitness.h"
#include "Probe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

namespace {

using Asked = std::vector<std::string>;

} // namespace

TEST(Durability, OfASuiteIsThatItsFileIsOnTheDiskBeforeItTakesTheOldOnesPlace) {
    watchDisk();
    setSuiteString("group.test", "key", "value");
    ASSERT_TRUE(synchronizeSuite("group.test"));
    EXPECT_EQ(askedOfDisk(),
        (Asked{"sync group.test.plist.tmp", "rename group.test.plist.tmp to group.test.plist"}));
}

TEST(Durability, OfTheStandardDomainIsTheSame) {
    setStandardString("key", "value");
    watchDisk();
    ASSERT_TRUE(synchronizeStandardDomain());
    EXPECT_EQ(askedOfDisk(),
        (Asked{"sync gnustep_tests.plist.tmp", "rename gnustep_tests.plist.tmp to gnustep_tests.plist"}));
}
