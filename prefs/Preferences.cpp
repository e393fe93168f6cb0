#include "prefs/Preferences.h"

#include "platform/Ports.h"

namespace tarnwick {

Preferences::Preferences(const Ports& ports)
    : publisher(ports.preferences, local, lists), held(ports.files, ports.folders, ports.process),
      templateFiles(ports.files, ports.folders, ports.bundle, ports.log, local, held),
      factory(ports.images, ports.folders, ports.log, local, lists, publisher, templateFiles),
      icons(ports.files, ports.folders, ports.bundle, ports.log),
      loading(ports.preferences, ports.files, ports.folders, ports.log, local, lists, publisher, factory,
          icons) {}

} // namespace tarnwick
