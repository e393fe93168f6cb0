#include "gnustep/defaults/ToolkitForms.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace tarnwick {
namespace {

/// Far deeper than any settings are, and far from the end of the stack.
constexpr std::size_t deepestNesting = 200;
/// A list of 100,000 records is a twentieth of these.
constexpr std::size_t mostObjects = 10'000'000;

/// Goes over the tokens of a list in the toolkit's form of text as its reader does.
class TextList {
public:
    explicit TextList(std::string_view text) : text_(text) {}

    [[nodiscard]] bool nestsAtMost(std::size_t limit) {
        std::size_t depth = 0;
        for (; place_ < text_.size(); ++place_) {
            switch (text_[place_]) {
            case '(':
            case '{':
                if (++depth > limit) {
                    return false;
                }
                break;
            case ')':
            case '}':
                depth -= depth > 0 ? 1 : 0;
                break;
            case '"':
                skipQuoted();
                break;
            case '/':
                skipComment();
                break;
            case '<':
                if (!skipTyped()) {
                    return false;
                }
                break;
            default:
                break;
            }
        }
        return true;
    }

private:
    /// Goes to the last character of what is found from here on, or to the end.
    void skipTo(std::string_view what, std::size_t from) {
        const auto found = text_.find(what, from);
        place_ = found == std::string_view::npos ? text_.size() : found + what.size() - 1;
    }

    void skipQuoted() {
        for (++place_; place_ < text_.size() && text_[place_] != '"'; ++place_) {
            place_ += text_[place_] == '\\' ? 1 : 0;
        }
    }

    void skipComment() {
        const auto next = text_.substr(place_ + 1, 1);
        if (next == "/") {
            skipTo("\n", place_ + 2);
        } else if (next == "*") {
            skipTo("*/", place_ + 2);
        }
    }

    /// Data or a number; not a long number, which the reader puts onto the stack, nor comments in data.
    bool skipTyped() {
        constexpr std::size_t longestNumber = 64;
        const auto start = place_ + 1;
        const auto kind = text_.substr(start, 1);
        skipTo(kind == "[" ? "]" : ">", start);
        if (kind == "[") {
            return true;
        }
        const auto content = text_.substr(start, std::min(place_, text_.size()) - start);
        return kind == "*" ? content.size() <= longestNumber : content.find('/') == std::string_view::npos;
    }

    std::string_view text_;
    std::size_t place_ = 0;
};

/// The objects of a binary property list, as a table of references.
class BinaryList {
public:
    BinaryList(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes), size_(size) {
        constexpr std::size_t trailerSize = 32;
        if (size <= trailerSize) {
            return;
        }
        const auto trailer = size - trailerSize;
        offsetSize_ = number(trailer + 6, 1);
        referenceSize_ = number(trailer + 7, 1);
        count_ = number(trailer + 8, 8);
        top_ = number(trailer + 16, 8);
        table_ = number(trailer + 24, 8);
        constexpr std::size_t widest = 4;
        isValid_ = offsetSize_ > 0 && offsetSize_ <= widest && referenceSize_ > 0 &&
                   referenceSize_ <= widest && table_ < trailer &&
                   count_ <= (trailer - table_) / offsetSize_ && top_ < count_;
    }

    /// Whether all that the top object leads to lies in the file, nests at most so deep, and is no more
    /// objects, each counted as often as something refers to it.
    [[nodiscard]] bool isWholeWithin(std::size_t deepest, std::size_t mostObjects) const {
        if (!isValid_) {
            return false;
        }
        // Contents come before what holds them; a circle never comes to an end.
        std::vector<Extent> extents(count_);
        std::vector<Visit> path{{top_, 0, {0, 1}}};
        while (!path.empty()) {
            auto& visit = path.back();
            const auto contents = contentsOf(visit.object);
            if (!contents || path.size() > deepest + 1 || visit.extent.objects > mostObjects) {
                return false;
            }
            if (visit.next < contents->references) {
                const auto object = number(contents->place + visit.next * referenceSize_, referenceSize_);
                if (object >= count_) {
                    return false;
                }
                if (extents[object].objects == 0) {
                    path.push_back({object, 0, {0, 1}});
                    continue;
                }
                ++visit.next;
                visit.extent.add(extents[object]);
            } else {
                extents[visit.object] = visit.extent;
                path.pop_back();
            }
        }
        return extents[top_].height <= deepest && extents[top_].objects <= mostObjects;
    }

private:
    /// How high an object stands above its deepest content, and how many objects it is.
    struct Extent {
        std::size_t height = 0;
        std::size_t objects = 0;

        void add(const Extent& content) {
            height = std::max(height, content.height + 1);
            objects += content.objects;
        }
    };
    struct Visit {
        std::size_t object;
        std::size_t next;
        Extent extent;
    };
    struct Contents {
        std::size_t place = 0;
        std::size_t references = 0;
    };

    [[nodiscard]] std::size_t number(std::size_t place, std::size_t width) const {
        std::size_t value = 0;
        for (std::size_t index = 0; index < width; ++index) {
            value = value << 8U | (place < size_ && index < size_ - place ? bytes_[place + index] : 0U);
        }
        return value;
    }

    /// The references that an object holds, which only arrays and dictionaries do; nothing when it does not
    /// lie in the file.
    [[nodiscard]] std::optional<Contents> contentsOf(std::size_t object) const {
        const auto start = number(table_ + object * offsetSize_, offsetSize_);
        const auto marker = number(start, 1);
        const auto width = widthOf(marker >> 4U);
        if (start >= size_ || width == 0) {
            return start < size_ ? std::optional(Contents{}) : std::nullopt;
        }
        auto place = start + 1;
        auto count = marker & 0xFU;
        if (count == 0xF) {
            // The toolkit reads no wider counts as they are meant.
            const auto countMarker = number(place, 1);
            if (countMarker < 0x10 || countMarker > 0x12) {
                return std::nullopt;
            }
            const auto countWidth = std::size_t{1} << (countMarker & 0x3U);
            count = number(place + 1, countWidth);
            place += 1 + countWidth;
        }
        if (place > size_ || count > (size_ - place) / width) {
            return std::nullopt;
        }
        const auto kind = marker >> 4U;
        return Contents{place, kind == array ? count : kind == dictionary ? 2 * count : 0};
    }

    /// How many bytes each of the things takes that the object counts; 0 for one that counts none.
    [[nodiscard]] std::size_t widthOf(std::size_t kind) const {
        switch (kind) {
        case data:
        case text:
            return 1;
        case wideText:
            return 2;
        case array:
            return referenceSize_;
        case dictionary:
            return 2 * referenceSize_;
        default:
            return 0;
        }
    }

    static constexpr std::size_t data = 0x4;
    static constexpr std::size_t text = 0x5;
    static constexpr std::size_t wideText = 0x6;
    static constexpr std::size_t array = 0xA;
    static constexpr std::size_t dictionary = 0xD;

    const std::uint8_t* bytes_;
    std::size_t size_;
    std::size_t offsetSize_ = 0;
    std::size_t referenceSize_ = 0;
    std::size_t count_ = 0;
    std::size_t top_ = 0;
    std::size_t table_ = 0;
    bool isValid_ = false;
};

} // namespace

bool toolkitSurvives(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    if (text.substr(0, 8) == "bplist00") {
        return BinaryList(bytes, size).isWholeWithin(deepestNesting, mostObjects);
    }
    const bool isOfSerializer = !text.empty() && (text[0] == '\0' || text[0] == '\1');
    return !isOfSerializer && TextList(text).nestsAtMost(deepestNesting);
}

} // namespace tarnwick
