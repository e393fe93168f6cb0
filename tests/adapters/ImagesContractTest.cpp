#include "Contract.h"
#include "Waiting.h"

#include "adapters/foundation/Adapters.h"
#include "platform/Images.h"
#include "tests/support/InMemoryImages.h"

#include <cstdlib>
#include <fstream>

namespace tarnwick::testing {
namespace {

constexpr int width = 12;
constexpr int height = 7;

class Pictures {
public:
    explicit Pictures(Implementation implementation) {
        if (implementation == Implementation::overThePlatform) {
            real_ = makeImages();
        }
        memory_.size = {width, height};
    }
    Images& port() { return real_ ? *real_ : static_cast<Images&>(memory_); }
    [[nodiscard]] PlistData bytes() const {
        return real_ ? tiffOf(pictureOfSize(width, height)) : tiffOf("tiff of a picture");
    }
    /// Where there is a file with that picture.
    std::string file() {
        const auto path = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/picture.png";
        if (real_) {
            const auto data = bytes();
            std::ofstream(path).write(
                reinterpret_cast<const char*>(data.bytes()), static_cast<std::streamsize>(data.size()));
        } else {
            memory_.pictureFiles[path] = "tiff of a picture";
        }
        return path;
    }

private:
    InMemoryImages memory_;
    std::unique_ptr<Images> real_;
};

using ImagesContract = Contract<Pictures>;

TEST_P(ImagesContract, APictureHasItsSizeAndATiffThatIsAPictureAgain) {
    for (const auto& image :
        {harness_.port().fromData(harness_.bytes()), harness_.port().fromFile(harness_.file())}) {
        ASSERT_TRUE(image);
        EXPECT_EQ(image->size(), (ImageSize{width, height}));
        const auto again = harness_.port().fromData(image->tiff());
        ASSERT_TRUE(again);
        EXPECT_EQ(again->size(), image->size());
    }
}

TEST_P(ImagesContract, WhatIsNoPictureGivesNone) {
    EXPECT_FALSE(harness_.port().fromData(PlistData()));
    EXPECT_FALSE(harness_.port().fromData(tiffOf("no picture")));
    EXPECT_FALSE(harness_.port().fromFile("/nowhere.png"));
}

TEST_P(ImagesContract, ANameIsNoPathAndNotEmpty) {
    EXPECT_FALSE(harness_.port().named(""));
    EXPECT_FALSE(harness_.port().named("CustomIcons/App"));
    EXPECT_FALSE(harness_.port().named("../Tarnwick"));
}

TEST_P(ImagesContract, EveryPathHasAnIcon) {
    EXPECT_TRUE(harness_.port().iconOfFile("/"));
    EXPECT_TRUE(harness_.port().iconOfFile("/nowhere at all"));
}

TARNWICK_BOTH_IMPLEMENTATIONS(ImagesContract);

} // namespace
} // namespace tarnwick::testing
