#include "adapters/foundation/SystemAdapters.h"

namespace tarnwick {

/// The system prepares its own processes.
void prepareProcess(int, char *[]) {}

} // namespace tarnwick
