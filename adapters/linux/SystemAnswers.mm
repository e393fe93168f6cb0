#include "adapters/foundation/SystemAdapters.h"

namespace tarnwick {

/// Linux keeps no register of applications by bundle identifier.
RegisteredApplications registeredApplications(std::string_view) {
    return {};
}

/// Linux takes the branches of the newest system.
bool isSystemAtLeast(int, int, int) {
    return true;
}

} // namespace tarnwick
