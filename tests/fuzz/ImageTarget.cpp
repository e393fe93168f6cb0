// Image data of a record, through the real conversions: bytes that are a picture become one and keep their
// size; any others become none.

#include "adapters/foundation/Adapters.h"
#include "platform/Images.h"
#include "tests/adapters/Pool.h"
#include "tests/fuzz/Require.h"

#include <cstdint>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace tarnwick;
    const testing::Pool pool;
    static const auto images = makeImages();
    const PlistData data(std::vector<std::uint8_t>(bytes, bytes + size));
    const auto copy = data;
    fuzz::require(copy.bytes() == data.bytes(), "a copy shares the bytes");
    fuzz::require(data == PlistData(std::vector<std::uint8_t>(bytes, bytes + size)), "equal bytes are equal");
    const auto image = images->fromData(data);
    if (!image) {
        return 0;
    }
    const auto picture = image->size();
    fuzz::require(picture.width >= 0 && picture.height >= 0, "a picture has a size");
    if (picture.width * picture.height > 1 << 20) {
        return 0;
    }
    const auto tiff = image->tiff();
    if (tiff.empty()) {
        return 0;
    }
    const auto again = images->fromData(tiff);
    fuzz::require(again != nullptr, "what a picture is stored as is a picture");
    const auto stored = again->size();
    fuzz::require(stored.width == picture.width && stored.height == picture.height, "of the same size");
    return 0;
}
