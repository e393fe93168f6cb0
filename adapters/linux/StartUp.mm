#include "adapters/foundation/SystemAdapters.h"

#import "TNStartUp.h"

namespace tarnwick {

void prepareProcess(int argc, char *argv[]) {
    TNPrepareProcess(argc, argv);
}

} // namespace tarnwick
