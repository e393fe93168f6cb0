#pragma once

#include "values/PlistValue.h"

#include <memory>
#include <string>
#include <string_view>

namespace tarnwick {

struct ImageSize {
    double width = 0;
    double height = 0;
    bool operator==(const ImageSize&) const = default;
};

/// A picture in the platform's own form. Implementations: AppKit image, in memory.
class Image {
public:
    virtual ~Image() = default;
    [[nodiscard]] virtual ImageSize size() const = 0;
    /// The TIFF representation; empty when the platform can make none.
    [[nodiscard]] virtual PlistData tiff() const = 0;
};

/// Shared, because the control that shows an image and the cell that describes it both hold it.
using ImagePointer = std::shared_ptr<const Image>;

/// Loads pictures; each operation gives null when there is none, or when it cannot be read as a picture.
/// Implementations: AppKit images, in memory.
class Images {
public:
    virtual ~Images() = default;
    /// An image of the application's resources by its name without extension.
    [[nodiscard]] virtual ImagePointer named(std::string_view name) = 0;
    [[nodiscard]] virtual ImagePointer fromData(const PlistData& data) = 0;
    [[nodiscard]] virtual ImagePointer fromFile(const std::string& path) = 0;
    /// The system's icon of the file at `path`; a missing file has a generic one.
    [[nodiscard]] virtual ImagePointer iconOfFile(const std::string& path) = 0;
};

} // namespace tarnwick
