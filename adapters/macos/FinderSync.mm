#include "platform/FinderSync.h"
#include "adapters/foundation/SystemAdapters.h"

#import <FinderSync/FinderSync.h>

namespace tarnwick {
namespace {

/// Before 10.14 the system can say nothing about its extensions; they count as enabled.
class ExtensionController final : public FinderSync {
public:
    bool isExtensionEnabled() const override {
        if (@available(macOS 10.14, *)) {
            return [FIFinderSyncController isExtensionEnabled];
        }
        return true;
    }
    void showExtensionManagementInterface() override {
        if (@available(macOS 10.14, *)) {
            [FIFinderSyncController showExtensionManagementInterface];
        }
    }
};

} // namespace

std::unique_ptr<FinderSync> makeFinderSync() {
    return std::make_unique<ExtensionController>();
}

} // namespace tarnwick
