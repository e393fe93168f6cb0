#include "gnustep/defaults/NestingDepth.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace tarnwick {
namespace {

bool xmlNestsAtMost(std::size_t limit, std::string_view text) {
    std::size_t depth = 0;
    for (auto place = text.find('<'); place != std::string_view::npos; place = text.find('<', place + 1)) {
        const auto tag = text.substr(place + 1, 6);
        const auto opens = [tag](std::string_view name) {
            return tag.substr(0, name.size()) == name &&
                   (tag.size() <= name.size() || tag[name.size()] == '>' || tag[name.size()] == ' ');
        };
        if (opens("array") || opens("dict")) {
            if (++depth > limit) {
                return false;
            }
        } else if (opens("/array") || opens("/dict")) {
            depth -= depth > 0 ? 1 : 0;
        }
    }
    return true;
}

bool textNestsAtMost(std::size_t limit, std::string_view text) {
    std::size_t depth = 0;
    bool quoted = false;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const auto character = text[place];
        if (character == '\\') {
            ++place;
        } else if (character == '"') {
            quoted = !quoted;
        } else if (!quoted && (character == '(' || character == '{')) {
            if (++depth > limit) {
                return false;
            }
        } else if (!quoted && (character == ')' || character == '}')) {
            depth -= depth > 0 ? 1 : 0;
        }
    }
    return true;
}

/// The containers of a binary property list, as a table of references.
class BinaryList {
public:
    BinaryList(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes), size_(size) {
        constexpr std::size_t trailerSize = 32;
        const auto trailer = size - trailerSize;
        offsetSize_ = number(trailer + 6, 1);
        referenceSize_ = number(trailer + 7, 1);
        count_ = number(trailer + 8, 8);
        top_ = number(trailer + 16, 8);
        table_ = number(trailer + 24, 8);
        valid_ = offsetSize_ > 0 && offsetSize_ <= 8 && referenceSize_ > 0 && referenceSize_ <= 8 &&
                 table_ < size && count_ <= size && top_ < count_;
    }

    /// Each object's height above its deepest content, the leaves first; a circle never gets one.
    [[nodiscard]] bool nestsAtMost(std::size_t limit) const {
        if (!valid_) {
            return true;
        }
        struct Visit {
            std::size_t object;
            std::size_t next;
            std::size_t height;
        };
        constexpr std::size_t unknown = ~std::size_t{0};
        std::vector<std::size_t> heights(count_, unknown);
        std::vector<Visit> path{{top_, 0, 0}};
        while (!path.empty()) {
            if (path.size() > limit + 1) {
                return false;
            }
            auto& visit = path.back();
            const auto contents = contentsOf(visit.object);
            if (visit.next == contents.count) {
                const auto height = visit.height;
                heights[visit.object] = height;
                path.pop_back();
                if (!path.empty()) {
                    path.back().height = std::max(path.back().height, height + 1);
                }
                continue;
            }
            const auto object = number(contents.place + visit.next * referenceSize_, referenceSize_);
            ++visit.next;
            if (object >= count_) {
                continue;
            }
            if (heights[object] != unknown) {
                visit.height = std::max(visit.height, heights[object] + 1);
            } else {
                path.push_back({object, 0, 0});
            }
        }
        return heights[top_] <= limit;
    }

private:
    struct Contents {
        std::size_t place = 0;
        std::size_t count = 0;
    };

    [[nodiscard]] std::size_t number(std::size_t place, std::size_t width) const {
        std::size_t value = 0;
        for (std::size_t index = 0; index < width; ++index) {
            value = value << 8U | (place < size_ && index < size_ - place ? bytes_[place + index] : 0U);
        }
        return value;
    }

    /// The references that an array or dictionary holds; none for anything else.
    [[nodiscard]] Contents contentsOf(std::size_t object) const {
        const auto place = number(table_ + object * offsetSize_, offsetSize_);
        const auto marker = number(place, 1);
        const auto kind = marker >> 4U;
        constexpr std::size_t array = 0xA;
        constexpr std::size_t dictionary = 0xD;
        if (kind != array && kind != dictionary) {
            return {};
        }
        auto contents = Contents{place + 1, marker & 0xFU};
        if (contents.count == 0xF) {
            const auto width = std::size_t{1} << (number(place + 1, 1) & 0x3U);
            contents = {place + 2 + width, number(place + 2, width)};
        }
        contents.count = std::min(contents.count, size_) * (kind == dictionary ? 2 : 1);
        return contents.place < size_ ? contents : Contents{};
    }

    const std::uint8_t* bytes_;
    std::size_t size_;
    std::size_t offsetSize_ = 0;
    std::size_t referenceSize_ = 0;
    std::size_t count_ = 0;
    std::size_t top_ = 0;
    std::size_t table_ = 0;
    bool valid_ = false;
};

} // namespace

bool nestsAtMost(std::size_t limit, const std::uint8_t* bytes, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    if (text.substr(0, 6) == "bplist") {
        return size < 40 || BinaryList(bytes, size).nestsAtMost(limit);
    }
    const auto start = text.find_first_not_of(" \t\r\n\xef\xbb\xbf");
    return start == std::string_view::npos ||
           (text[start] == '<' && text.find("plist") != std::string_view::npos
                   ? xmlNestsAtMost(limit, text)
                   : textNestsAtMost(limit, text));
}

} // namespace tarnwick
