#pragma once

#include "platform/Images.h"

#include <map>
#include <set>
#include <string>

namespace tarnwick::testing {

/// A picture that is nothing but its text and its size.
class InMemoryImage final : public Image {
public:
    InMemoryImage(std::string text, ImageSize size) : text_(std::move(text)), size_(size) {}
    [[nodiscard]] const std::string& text() const { return text_; }
    ImageSize size() const override { return size_; }
    PlistData tiff() const override { return PlistData({text_.begin(), text_.end()}); }

private:
    std::string text_;
    ImageSize size_;
};

/// The text of an in-memory picture; empty for none.
[[nodiscard]] std::string textOf(const ImagePointer& image);
/// The bytes that stand for a picture in a record.
[[nodiscard]] PlistData tiffOf(const std::string& text);

/// Every image name exists unless it is in `missingNames`; its TIFF is "tiff of NAME". Data reads as a
/// picture when it begins with "tiff"; a file does when `pictureFiles` gives it a text.
class InMemoryImages final : public Images {
public:
    std::set<std::string, std::less<>> missingNames;
    std::map<std::string, std::string> pictureFiles;
    ImageSize size{128, 128};

    ImagePointer named(std::string_view name) override;
    ImagePointer fromData(const PlistData& data) override;
    ImagePointer fromFile(const std::string& path) override;
    /// "icon of PATH", for any path.
    ImagePointer iconOfFile(const std::string& path) override;

private:
    ImagePointer make(std::string text) const;
};

} // namespace tarnwick::testing
