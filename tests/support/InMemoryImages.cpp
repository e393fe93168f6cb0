#include "tests/support/InMemoryImages.h"

#include <algorithm>

namespace tarnwick::testing {

std::string textOf(const ImagePointer& image) {
    const auto* made = dynamic_cast<const InMemoryImage*>(image.get());
    return made ? made->text() : std::string();
}

PlistData tiffOf(const std::string& text) {
    return PlistData({text.begin(), text.end()});
}

ImagePointer InMemoryImages::make(const std::string& text) const {
    return std::make_shared<const InMemoryImage>(tiffOf(text), size);
}

ImagePointer InMemoryImages::named(std::string_view name) {
    const bool isName = !name.empty() && name.find('/') == std::string_view::npos;
    return !isName || missingNames.count(name) != 0 ? nullptr : make("tiff of " + std::string(name));
}

ImagePointer InMemoryImages::fromData(const PlistData& data) {
    ++reads;
    constexpr std::string_view mark = "tiff";
    const auto isPicture = data.size() >= mark.size() && std::equal(mark.begin(), mark.end(), data.bytes());
    return isPicture ? std::make_shared<const InMemoryImage>(data, size) : nullptr;
}

ImagePointer InMemoryImages::fromFile(const std::string& path) {
    const auto found = pictureFiles.find(path);
    return found == pictureFiles.end() ? nullptr : make(found->second);
}

ImagePointer InMemoryImages::iconOfFile(const std::string& path) {
    return make("icon of " + path);
}

} // namespace tarnwick::testing
