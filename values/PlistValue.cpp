#include "values/PlistValue.h"

#include <cmath>
#include <cstring>

namespace tarnwick {
namespace {

/// A value that is no number is the same as itself: a value read back must equal the one stored.
bool isSameNumber(double one, double other) {
    return one == other || (std::isnan(one) && std::isnan(other));
}

} // namespace

PlistData::PlistData(std::vector<std::uint8_t> bytes) {
    auto owned = std::make_shared<const std::vector<std::uint8_t>>(std::move(bytes));
    bytes_ = owned->data();
    size_ = owned->size();
    owner_ = std::move(owned);
}

PlistData::PlistData(std::shared_ptr<const void> owner, const std::uint8_t* bytes, std::size_t size)
    : owner_(std::move(owner)), bytes_(bytes), size_(size) {}

bool PlistData::operator==(const PlistData& other) const {
    if (size_ != other.size_) {
        return false;
    }
    return bytes_ == other.bytes_ || size_ == 0 || std::memcmp(bytes_, other.bytes_, size_) == 0;
}

PlistValue::PlistValue(PlistDictionary dictionary)
    : value_(std::make_shared<const PlistDictionary>(std::move(dictionary))) {}

PlistValue::PlistValue(PlistArray array) : value_(std::make_shared<const PlistArray>(std::move(array))) {}

const PlistDictionary* PlistValue::dictionary() const {
    const auto* held = std::get_if<std::shared_ptr<const PlistDictionary>>(&value_);
    return held ? held->get() : nullptr;
}

const PlistArray* PlistValue::array() const {
    const auto* held = std::get_if<std::shared_ptr<const PlistArray>>(&value_);
    return held ? held->get() : nullptr;
}

std::shared_ptr<const PlistDictionary> PlistValue::sharedDictionary() const {
    const auto* held = std::get_if<std::shared_ptr<const PlistDictionary>>(&value_);
    return held ? *held : nullptr;
}

bool PlistDate::operator==(const PlistDate& other) const {
    return isSameNumber(secondsSinceReferenceDate, other.secondsSinceReferenceDate);
}

bool PlistValue::operator==(const PlistValue& other) const {
    if (const auto* mine = dictionary()) {
        const auto* theirs = other.dictionary();
        return theirs && (mine == theirs || *mine == *theirs);
    }
    if (const auto* mine = array()) {
        const auto* theirs = other.array();
        return theirs && (mine == theirs || *mine == *theirs);
    }
    if (const auto* mine = real()) {
        const auto* theirs = other.real();
        return theirs && isSameNumber(*mine, *theirs);
    }
    return value_ == other.value_;
}

} // namespace tarnwick
