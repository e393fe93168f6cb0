#include "integration/SystemIntegration.h"

#include "platform/Ports.h"
#include "prefs/Preferences.h"

namespace tarnwick {

SystemIntegration::SystemIntegration(const Ports& ports, Preferences& preferences)
    : finderExtension(
          ports.bundle, ports.workspace, ports.panels, ports.process, ports.runLoop, preferences.local),
      restartRequest(ports.preferences, ports.notifications),
      scriptHelper(ports.userScripts, ports.files, ports.folders, ports.bundle, ports.panels, ports.runLoop,
          ports.log),
      tools(ports.process, ports.workspace, ports.panels, ports.contents, ports.folders, ports.log) {}

} // namespace tarnwick
