#include "platform/FinderSync.h"
#include "adapters/foundation/SystemAdapters.h"
#import "adapters/linux/StandIns.h"

#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

/// There is no Finder here whose extension could be switched off, unless a test says so.
class NoFinderSync final : public FinderSync {
public:
    bool isExtensionEnabled() const override { return ![standInAnswer(@"extensionIsOff") boolValue]; }
    void showExtensionManagementInterface() override {
        NSLog(@"no Finder extensions on this system: there is no management screen");
    }
};

} // namespace

std::unique_ptr<FinderSync> makeFinderSync() {
    return std::make_unique<NoFinderSync>();
}

} // namespace tarnwick
