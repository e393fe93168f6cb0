#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarnwick {

class PlistValue;
using PlistArray = std::vector<PlistValue>;
using PlistDictionary = std::map<std::string, PlistValue, std::less<>>;

/// Immutable bytes. Copies share one buffer, so an image in a record is never duplicated with it.
class PlistData {
public:
    PlistData() = default;
    explicit PlistData(std::vector<std::uint8_t> bytes);
    /// Bytes that somebody else keeps alive for as long as `owner` lives.
    PlistData(std::shared_ptr<const void> owner, const std::uint8_t* bytes, std::size_t size);

    [[nodiscard]] const std::uint8_t* bytes() const { return bytes_; }
    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }

    bool operator==(const PlistData& other) const;

private:
    // Shared, because every copy of a record refers to the same image.
    std::shared_ptr<const void> owner_;
    const std::uint8_t* bytes_ = nullptr;
    std::size_t size_ = 0;
};

/// A point in time, in seconds since 2001-01-01 00:00:00 UTC.
struct PlistDate {
    double secondsSinceReferenceDate = 0;
    bool operator==(const PlistDate& other) const;
};

/// An integer beyond all signed ones, from 2^63 to 2^64 - 1. The program itself has none, but keeps those
/// that it finds.
struct PlistLargeInteger {
    std::uint64_t number = 0;
    bool operator==(const PlistLargeInteger& other) const { return number == other.number; }
};

/// A property-list value: dictionary, array, string, integer, real, boolean, date or data.
///
/// Integer and boolean are different kinds and stay different through every store. Values are immutable;
/// copying a dictionary or an array shares its contents.
class PlistValue {
public:
    enum class Kind { dictionary, array, string, integer, real, boolean, date, data, largeInteger };

    PlistValue(PlistDictionary dictionary);
    PlistValue(PlistArray array);
    PlistValue(std::string text) : value_(std::move(text)) {}
    PlistValue(std::string_view text) : value_(std::string(text)) {}
    PlistValue(const char* text) : value_(std::string(text)) {}
    PlistValue(std::int64_t number) : value_(number) {}
    PlistValue(int number) : value_(static_cast<std::int64_t>(number)) {}
    PlistValue(double number) : value_(number) {}
    PlistValue(bool flag) : value_(flag) {}
    PlistValue(PlistDate date) : value_(date) {}
    PlistValue(PlistData data) : value_(std::move(data)) {}
    PlistValue(PlistLargeInteger number) : value_(number) {}
    /// A pointer is never a boolean.
    PlistValue(const void*) = delete;

    /// A dictionary or an array that others hold too; the pointer must not be null.
    explicit PlistValue(std::shared_ptr<const PlistDictionary> dictionary) : value_(std::move(dictionary)) {}
    explicit PlistValue(std::shared_ptr<const PlistArray> array) : value_(std::move(array)) {}

    [[nodiscard]] Kind kind() const { return static_cast<Kind>(value_.index()); }

    /// Each of these is null when the value is of another kind.
    [[nodiscard]] const PlistDictionary* dictionary() const;
    [[nodiscard]] const PlistArray* array() const;
    [[nodiscard]] const std::string* string() const { return std::get_if<std::string>(&value_); }
    [[nodiscard]] const std::int64_t* integer() const { return std::get_if<std::int64_t>(&value_); }
    [[nodiscard]] const double* real() const { return std::get_if<double>(&value_); }
    [[nodiscard]] const bool* boolean() const { return std::get_if<bool>(&value_); }
    [[nodiscard]] const PlistDate* date() const { return std::get_if<PlistDate>(&value_); }
    [[nodiscard]] const PlistData* data() const { return std::get_if<PlistData>(&value_); }
    [[nodiscard]] const PlistLargeInteger* largeInteger() const {
        return std::get_if<PlistLargeInteger>(&value_);
    }

    /// The dictionary itself, shared; null when the value is of another kind.
    [[nodiscard]] std::shared_ptr<const PlistDictionary> sharedDictionary() const;

    /// Equal kinds with equal contents: the integer 1, the real 1 and the boolean true are three values. A
    /// real that is no number equals itself.
    bool operator==(const PlistValue& other) const;

private:
    // Containers are shared: a copied list refers to the records of the original.
    std::variant<std::shared_ptr<const PlistDictionary>, std::shared_ptr<const PlistArray>, std::string,
        std::int64_t, double, bool, PlistDate, PlistData, PlistLargeInteger>
        value_;
};

} // namespace tarnwick
