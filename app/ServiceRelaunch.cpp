#include "app/ServiceRelaunch.h"

#include "app/ApplicationIdentity.h"
#include "platform/ApplicationBundle.h"
#include "platform/RunLoop.h"
#include "platform/Workspace.h"

#include <string>

namespace tarnwick {

void ServiceRelaunch::run() {
    runLoop_.performInBackground([this] {
        workspace_.terminateAll(serviceIdentifier);
        workspace_.launchApplication(bundle_.plugInsFolder().append("/").append(serviceFile));
    });
}

} // namespace tarnwick
