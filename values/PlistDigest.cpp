#include "values/PlistDigest.h"

#include <cmath>
#include <cstdio>

namespace tarnwick {
namespace {

/// FNV-1a over the kinds, sizes and contents of a value.
class Digest {
public:
    void add(const PlistValue& value) {
        addBytes(static_cast<std::uint64_t>(value.kind()));
        switch (value.kind()) {
        case PlistValue::Kind::dictionary:
            addBytes(std::uint64_t{value.dictionary()->size()});
            for (const auto& [key, element] : *value.dictionary()) {
                addText(key);
                add(element);
            }
            break;
        case PlistValue::Kind::array:
            addBytes(std::uint64_t{value.array()->size()});
            for (const auto& element : *value.array()) {
                add(element);
            }
            break;
        case PlistValue::Kind::string:
            addText(*value.string());
            break;
        case PlistValue::Kind::integer:
            addBytes(*value.integer());
            break;
        case PlistValue::Kind::largeInteger:
            addBytes(value.largeInteger()->number);
            break;
        case PlistValue::Kind::real:
            addNumber(*value.real());
            break;
        case PlistValue::Kind::boolean:
            addBytes(std::uint64_t{*value.boolean() ? 1U : 0U});
            break;
        case PlistValue::Kind::date:
            addNumber(value.date()->secondsSinceReferenceDate);
            break;
        case PlistValue::Kind::data:
            addText({reinterpret_cast<const char*>(value.data()->bytes()), value.data()->size()});
            break;
        }
    }
    [[nodiscard]] std::uint64_t number() const { return number_; }

private:
    template <typename Value>
    void addBytes(Value value) {
        addRange({reinterpret_cast<const char*>(&value), sizeof value});
    }
    /// All that are no numbers are equal, and so are both zeros.
    void addNumber(double number) { addBytes(std::isnan(number) ? std::nan("") : number + 0.0); }
    void addText(std::string_view text) {
        addBytes(std::uint64_t{text.size()});
        addRange(text);
    }
    void addRange(std::string_view bytes) {
        constexpr std::uint64_t prime = 1'099'511'628'211U;
        for (const char byte : bytes) {
            number_ = (number_ ^ static_cast<unsigned char>(byte)) * prime;
        }
    }

    std::uint64_t number_ = 14'695'981'039'346'656'037U;
};

} // namespace

std::string digestOf(const PlistValue& value) {
    Digest digest;
    digest.add(value);
    char text[sizeof "0123456789abcdef"];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(digest.number()));
    return text;
}

} // namespace tarnwick
