#import "adapters/foundation/NSBundle+LoginItem.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/SystemAdapters.h"
#include "platform/ApplicationBundle.h"

#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

class MainBundle final : public ApplicationBundle {
public:
    std::string localized(std::string_view key) const override {
        return toString([bundle() localizedStringForKey:toNSString(key) value:@"" table:nil]);
    }
    std::string resourceFolder() const override { return toString([bundle() resourcePath]); }
    std::string plugInsFolder() const override {
        NSString *folder = [bundle() builtInPlugInsPath];
        return folder ? toString(folder) : toString([bundle() bundlePath]) + "/Contents/PlugIns";
    }
    std::string shortVersion() const override {
        id version = [bundle() objectForInfoDictionaryKey:@"CFBundleShortVersionString"];
        return [version isKindOfClass:[NSString class]] ? toString(version) : std::string();
    }
    std::string path() const override { return toString([bundle() bundlePath]); }
    bool carriesExtension() const override { return tarnwick::carriesExtension(); }
    bool isLoginItem() const override { return [bundle() isLoginItem]; }
    bool isExtensionEnabled() const override { return tarnwick::isExtensionEnabled(); }
    void showExtensionManagementInterface() override { tarnwick::showExtensionManagementInterface(); }

private:
    static NSBundle *bundle() { return [NSBundle mainBundle]; }
};

} // namespace

std::unique_ptr<ApplicationBundle> makeApplicationBundle() {
    return std::make_unique<MainBundle>();
}

} // namespace tarnwick
