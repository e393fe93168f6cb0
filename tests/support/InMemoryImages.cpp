#include "tests/support/InMemoryImages.h"

namespace tarnwick::testing {

std::string textOf(const ImagePointer& image) {
    const auto* made = dynamic_cast<const InMemoryImage*>(image.get());
    return made ? made->text() : std::string();
}

PlistData tiffOf(const std::string& text) {
    return PlistData({text.begin(), text.end()});
}

ImagePointer InMemoryImages::make(std::string text) const {
    return std::make_shared<const InMemoryImage>(std::move(text), size);
}

ImagePointer InMemoryImages::named(std::string_view name) {
    return missingNames.count(name) != 0 ? nullptr : make("tiff of " + std::string(name));
}

ImagePointer InMemoryImages::fromData(const PlistData& data) {
    std::string text(data.bytes(), data.bytes() + data.size());
    return text.rfind("tiff", 0) == 0 ? make(std::move(text)) : nullptr;
}

ImagePointer InMemoryImages::fromFile(const std::string& path) {
    const auto found = pictureFiles.find(path);
    return found == pictureFiles.end() ? nullptr : make(found->second);
}

ImagePointer InMemoryImages::iconOfFile(const std::string& path) {
    return make("icon of " + path);
}

} // namespace tarnwick::testing
