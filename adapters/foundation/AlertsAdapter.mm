#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/Alerts.h"

#import <AppKit/AppKit.h>

namespace tarnwick {
namespace {

class AppKitAlerts final : public Alerts {
public:
    long runModal(const AlertRequest &request) override {
        const auto alert = ObjectPointer<NSAlert>::adopting([[NSAlert alloc] init]);
        if (request.style == AlertStyle::warning) {
            [alert.get() setAlertStyle:NSAlertStyleWarning];
        }
        if (!request.messageText.empty()) {
            [alert.get() setMessageText:toNSString(request.messageText)];
        }
        [alert.get() setInformativeText:toNSString(request.informativeText)];
        for (const auto &title : request.buttons) {
            [alert.get() addButtonWithTitle:toNSString(title)];
        }
        return [alert.get() runModal];
    }
};

} // namespace

std::unique_ptr<Alerts> makeAlerts() {
    return std::make_unique<AppKitAlerts>();
}

} // namespace tarnwick
