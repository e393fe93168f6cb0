#pragma once

#include "platform/Images.h"

#include <map>
#include <set>
#include <string>

namespace tarnwick::testing {

/// A picture that is nothing but its bytes, shared with the data it was read from, and its size.
class InMemoryImage final : public Image {
public:
    InMemoryImage(PlistData bytes, ImageSize size) : bytes_(std::move(bytes)), size_(size) {}
    [[nodiscard]] std::string text() const { return {bytes_.bytes(), bytes_.bytes() + bytes_.size()}; }
    ImageSize size() const override { return size_; }
    PlistData tiff() const override { return bytes_; }

private:
    PlistData bytes_;
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
    /// How often data has been read.
    std::size_t reads = 0;

    ImagePointer named(std::string_view name) override;
    ImagePointer fromData(const PlistData& data) override;
    ImagePointer fromFile(const std::string& path) override;
    /// "icon of PATH", for any path.
    ImagePointer iconOfFile(const std::string& path) override;

private:
    ImagePointer make(const std::string& text) const;
};

} // namespace tarnwick::testing
