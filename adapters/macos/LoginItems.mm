#import "adapters/macos/NSBundle+LoginItem.h"

#include "adapters/foundation/SystemAdapters.h"

namespace tarnwick {

bool isLoginItem() {
    return [[NSBundle mainBundle] isLoginItem];
}

} // namespace tarnwick
