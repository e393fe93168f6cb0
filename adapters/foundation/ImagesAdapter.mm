#import "adapters/foundation/ImageAccess.h"
#import "adapters/foundation/ImageConversion.h"
#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/Images.h"

namespace tarnwick {
namespace {

class AppKitImage final : public Image {
public:
    explicit AppKitImage(ObjectPointer<NSImage> image) : image_(std::move(image)) {}

    ImageSize size() const override {
        const NSSize size = [image_.get() size];
        return {size.width, size.height};
    }
    PlistData tiff() const override {
        NSData *data = [image_.get() TIFFRepresentation];
        return [data length] > 0 ? toPlistData(data) : PlistData();
    }
    [[nodiscard]] NSImage *image() const { return image_.get(); }

private:
    ObjectPointer<NSImage> image_;
};

ImagePointer adopt(NSImage *image) {
    auto owned = ObjectPointer<NSImage>::adopting(image);
    return [image isValid] ? std::make_shared<const AppKitImage>(std::move(owned)) : nullptr;
}

/// Damaged pictures are refused with an exception on some systems.
template <typename Make>
NSImage *madeSafely(const Make &make) {
    @try {
        return make();
    } @catch (NSException *) {
        return nil;
    }
}

ImagePointer imageFromData(NSData *data) {
    return [data length] > 0 ? adopt(madeSafely([data] { return newImageWithData(data); })) : nullptr;
}

ImagePointer imageAt(NSString *path) {
    return imageFromData([NSData dataWithContentsOfFile:path]);
}

class AppKitImages final : public Images {
public:
    /// The custom icons lie in a folder of their own: on a volume that ignores case, some of their names are
    /// those of template icons.
    ImagePointer named(std::string_view name) override {
        if (name.empty() || name.find('/') != std::string_view::npos) {
            return nullptr;
        }
        NSString *resources = [[NSBundle mainBundle] resourcePath];
        NSString *file = [toNSString(name) stringByAppendingString:@".png"];
        if (auto image = imageAt([[resources stringByAppendingPathComponent:@"CustomIcons"]
                stringByAppendingPathComponent:file])) {
            return image;
        }
        return imageAt([resources stringByAppendingPathComponent:file]);
    }
    ImagePointer fromData(const PlistData &data) override { return imageFromData(toNSData(data)); }
    ImagePointer fromFile(const std::string &path) override { return imageAt(toNSString(path)); }
    ImagePointer iconOfFile(const std::string &path) override {
        return adopt([iconOfFileAtPath(toNSString(path)) retain]);
    }
};

} // namespace

std::unique_ptr<Images> makeImages() {
    return std::make_unique<AppKitImages>();
}

NSImage *imageOf(const ImagePointer &image) {
    // Every image that reaches a window was made above.
    return image ? static_cast<const AppKitImage *>(image.get())->image() : nil;
}

} // namespace tarnwick
