#include "adapters/linux/PictureHeader.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace tarnwick {
namespace {

/// No compression that these formats use makes more of a byte.
constexpr std::uint64_t pixelsPerByte = 8 * 1032;
constexpr std::uint64_t longestSide = 32'768;

enum class Order { littleEndian, bigEndian };

/// Numbers at places in the bytes; 0 past the end.
class Reader {
public:
    Reader(const std::uint8_t* bytes, std::size_t size, Order order)
        : bytes_(bytes), size_(size), order_(order) {}

    [[nodiscard]] std::uint32_t number(std::size_t place, std::size_t width) const {
        if (place > size_ || width > size_ - place) {
            return 0;
        }
        std::uint32_t value = 0;
        for (std::size_t index = 0; index < width; ++index) {
            const auto next = order_ == Order::bigEndian ? index : width - 1 - index;
            value = value << 8U | bytes_[place + next];
        }
        return value;
    }

private:
    const std::uint8_t* bytes_;
    std::size_t size_;
    Order order_;
};

struct Sides {
    std::uint64_t width = 0;
    std::uint64_t height = 0;
};

/// The largest of all the pictures in the file, which a decoder reads one after the other.
Sides sidesOfTiff(const Reader& reader) {
    constexpr std::uint32_t widthTag = 256;
    constexpr std::uint32_t heightTag = 257;
    constexpr std::uint32_t samplesTag = 277;
    /// Of a pixel: colours and transparency. Decoders have a place on the stack for each.
    constexpr std::uint64_t mostSamples = 8;
    constexpr std::uint32_t shortType = 3;
    constexpr std::size_t entrySize = 12;
    constexpr int mostPictures = 64;
    Sides sides;
    std::size_t directory = reader.number(4, 4);
    for (int picture = 0; directory != 0 && picture < mostPictures; ++picture) {
        const std::size_t entries = reader.number(directory, 2);
        for (std::size_t entry = 0; entry < entries; ++entry) {
            const auto place = directory + 2 + entry * entrySize;
            const auto tag = reader.number(place, 2);
            const std::uint64_t value =
                reader.number(place + 8, reader.number(place + 2, 2) == shortType ? 2 : 4);
            if (tag == widthTag) {
                sides.width = std::max(sides.width, value);
            } else if (tag == heightTag) {
                sides.height = std::max(sides.height, value);
            } else if (tag == samplesTag && value > mostSamples) {
                return {};
            }
        }
        directory = reader.number(directory + 2 + entries * entrySize, 4);
    }
    return sides;
}

Sides sidesOfPng(const Reader& reader) {
    return {reader.number(16, 4), reader.number(20, 4)};
}

} // namespace

bool mayBePicture(const std::uint8_t* bytes, std::size_t size) {
    using namespace std::string_view_literals;
    const auto beginsWith = [&](std::string_view signature) {
        return size >= signature.size() && std::memcmp(bytes, signature.data(), signature.size()) == 0;
    };
    Sides sides;
    if (beginsWith("II*\0"sv)) {
        sides = sidesOfTiff(Reader(bytes, size, Order::littleEndian));
    } else if (beginsWith("MM\0*"sv)) {
        sides = sidesOfTiff(Reader(bytes, size, Order::bigEndian));
    } else if (beginsWith("\x89PNG\r\n\x1a\n"sv)) {
        sides = sidesOfPng(Reader(bytes, size, Order::bigEndian));
    }
    return sides.width > 0 && sides.height > 0 && sides.width <= longestSide && sides.height <= longestSide &&
           sides.width * sides.height <= pixelsPerByte * size;
}

} // namespace tarnwick
