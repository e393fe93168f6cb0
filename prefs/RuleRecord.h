#pragma once

#include "values/PlistValue.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// The field keys of a `RuleRecord`, spelled as stored.
///
/// | category               | fields                                                                        |
/// |------------------------|-------------------------------------------------------------------------------|
/// | CreateNewFile          | enable, displayName, extension (no dot), modified, optionally enableMainMenu  |
/// | CopyFilesTo, CommonPath| enable, realPath (absolute, no trailing slash), displayName                   |
/// | CustomIcon             | enable, icon (TIFF data), displayName, modified                               |
/// | Others                 | enable, icon, displayName, nameModified, noteModified, Action, Note           |
namespace field {
inline constexpr std::string_view enable = "enable";
inline constexpr std::string_view displayName = "displayName";
inline constexpr std::string_view extension = "extension";
inline constexpr std::string_view modified = "modified";
inline constexpr std::string_view enableMainMenu = "enableMainMenu";
inline constexpr std::string_view realPath = "realPath";
inline constexpr std::string_view icon = "icon";
inline constexpr std::string_view nameModified = "nameModified";
inline constexpr std::string_view noteModified = "noteModified";
inline constexpr std::string_view action = "Action";
inline constexpr std::string_view note = "Note";

/// Those that are read as flags, and as texts.
inline constexpr std::array flags{enable, enableMainMenu, modified, nameModified, noteModified};
inline constexpr std::array texts{displayName, extension, realPath, action, note};
} // namespace field

/// A `realPath` that stands for a target without a folder.
inline constexpr std::string_view undefinedPath = "Undefined";

/// The boolean value of a flag, however it is encoded: a number is true when non-zero; a string when, after
/// white space, an optional sign and zeros, it goes on with a digit 1 to 9 or one of Y, y, T, t. Any other
/// kind of value has none.
[[nodiscard]] std::optional<bool> flagValue(const PlistValue& value);

/// One menu rule: an immutable dictionary. A change makes a changed copy, which shares the unchanged values.
/// A field of the wrong type reads as missing.
class RuleRecord {
public:
    RuleRecord() : RuleRecord(PlistDictionary{}) {}
    explicit RuleRecord(PlistDictionary fields)
        : fields_(std::make_shared<const PlistDictionary>(std::move(fields))) {}
    /// `fields` must not be null.
    explicit RuleRecord(std::shared_ptr<const PlistDictionary> fields) : fields_(std::move(fields)) {}

    /// The field by the flag rule; missing reads as false.
    [[nodiscard]] bool flag(std::string_view key) const;
    /// The field's text; empty when missing.
    [[nodiscard]] std::string_view text(std::string_view key) const;
    /// The field's bytes; empty when missing.
    [[nodiscard]] PlistData data(std::string_view key) const;
    /// The field as stored, null when there is none.
    [[nodiscard]] const PlistValue* value(std::string_view key) const;

    /// A copy in which one field has another value; the receiver stays as it is.
    [[nodiscard]] RuleRecord with(std::string_view key, PlistValue value) const;

    /// A copy without one field.
    [[nodiscard]] RuleRecord without(std::string_view key) const;
    /// The one field in which the other record differs; nothing when it is none, or more than one.
    [[nodiscard]] std::optional<std::string> onlyDifference(const RuleRecord& other) const;

    [[nodiscard]] bool isEnabled() const { return flag(field::enable); }
    /// Always on and immovable: the QR code and the two translations.
    [[nodiscard]] bool hasFixedAction() const;
    /// Not removable: the fixed actions and the two of the screenshot application.
    [[nodiscard]] bool hasProtectedAction() const;

    [[nodiscard]] PlistValue toPlist() const { return PlistValue(fields_); }

    bool operator==(const RuleRecord& other) const {
        return fields_ == other.fields_ || *fields_ == *other.fields_;
    }

private:
    // Shared with the stored array and with other copies of the list; never null, never changed.
    std::shared_ptr<const PlistDictionary> fields_;
};

} // namespace tarnwick
