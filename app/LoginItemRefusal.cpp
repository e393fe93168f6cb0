#include "app/LoginItemRefusal.h"

#include "platform/Alerts.h"
#include "platform/ApplicationBundle.h"
#include "platform/LoginItems.h"
#include "platform/ProcessControl.h"

namespace tarnwick {

void refuseLoginItemStart(const Platform& platform) {
    if (!platform.loginItems.isLoginItem()) {
        return;
    }
    AlertRequest request;
    request.style = AlertStyle::warning;
    request.informativeText =
        platform.bundle.localized("Tarnwick is a Finder plug-in,and it starts with the system "
                                  "without adding it to the startup item.");
    platform.alerts.runModal(request);
    platform.process.exit(0);
}

} // namespace tarnwick
