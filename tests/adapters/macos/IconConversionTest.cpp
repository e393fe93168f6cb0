#include "IconProbe.h"
#include "StandInTest.h"

namespace tarnwick::standins {
namespace {

class IconConversionTest : public StandInTest {};

TEST_F(IconConversionTest, KeepsTheOnePictureOfTheIconsOwnSize) {
    const auto icon = iconOf("/Applications/Any.app");
    EXPECT_EQ(icon.origin, "picture");
    EXPECT_EQ(icon.width, 32);
    EXPECT_EQ(calls(), (Calls{"iconForFile(/Applications/Any.app)", "CGImageForProposedRect(nothing asked)",
                           "initWithCGImage(picture, 32 x 32)"}));
}

TEST_F(IconConversionTest, APictureOfAnyFormatIsLeftToTheSystemAndOwnedByWhoAsked) {
    makeAndFreePicture(7);
    EXPECT_EQ(calls(), Calls{"initWithData(7 bytes)"});
}

TEST_F(IconConversionTest, AnIconWithoutAPictureIsGivenAsItIs) {
    answers().iconHasPicture = false;
    EXPECT_EQ(iconOf("/nowhere").origin, "icon");
    EXPECT_EQ(calls(), (Calls{"iconForFile(/nowhere)", "CGImageForProposedRect(nothing asked)"}));
}

} // namespace
} // namespace tarnwick::standins
