#include "platform/FinderSync.h"
#include "adapters/foundation/SystemAdapters.h"

#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

/// There is no Finder here whose extension could be switched off.
class AlwaysEnabled final : public FinderSync {
public:
    bool isExtensionEnabled() const override { return true; }
    void showExtensionManagementInterface() override {
        NSLog(@"no Finder extensions on this system: there is no management screen");
    }
};

} // namespace

std::unique_ptr<FinderSync> makeFinderSync() {
    return std::make_unique<AlwaysEnabled>();
}

} // namespace tarnwick
