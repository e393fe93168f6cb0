#include "prefs/Preferences.h"

#include "platform/Ports.h"

namespace tarnwick {

Preferences::Preferences(const Ports& ports)
    : publisher(ports.preferences, local, lists), held(ports.files, ports.folders, ports.process),
      templateFolder(ports.files, ports.folders, ports.bundle, ports.log),
      templateFiles(ports.files, ports.contents, templateFolder, local, held, ports.log),
      recovery(ports.files, templateFolder, local, held, ports.log),
      factory(ports.images, ports.folders, ports.log, local, lists, publisher, templateFiles),
      icons(ports.files, ports.folders, ports.bundle, ports.log),
      loading(ports.preferences, ports.files, ports.folders, ports.log, local, lists, publisher, factory,
          recovery, icons) {}

} // namespace tarnwick
