#include "app/ServiceRelaunch.h"

#include "app/ApplicationIdentity.h"
#include "platform/ApplicationBundle.h"
#include "platform/RunLoop.h"
#include "platform/RunningApplications.h"
#include "platform/Workspace.h"

#include <string>

namespace tarnwick {

void relaunchService(const Platform& platform) {
    platform.runLoop.performInBackground([platform] {
        platform.runningApplications.terminateAll(serviceIdentifier);
        platform.workspace.launchApplication(platform.bundle.plugInsFolder().append("/").append(serviceFile));
    });
}

} // namespace tarnwick
