#include "app/LoginItemRefusal.h"

#include "platform/ApplicationBundle.h"
#include "platform/Panels.h"
#include "platform/Process.h"

namespace tarnwick {

void refuseLoginItemStart(const ApplicationBundle& bundle, Panels& panels, Process& process) {
    if (!bundle.isLoginItem()) {
        return;
    }
    AlertRequest request;
    request.style = AlertStyle::warning;
    request.informativeText = bundle.localized("Tarnwick is a Finder plug-in,and it starts with the system "
                                               "without adding it to the startup item.");
    panels.runAlert(request);
    process.exit(0);
}

} // namespace tarnwick
