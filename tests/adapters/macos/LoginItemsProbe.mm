#include "LoginItemsProbe.h"

#import "adapters/foundation/NSBundle+LoginItem.h"

namespace tarnwick::standins {

bool isOwnBundleLoginItem() {
    return [[NSBundle mainBundle] isLoginItem];
}

void addOwnBundle() {
    [[NSBundle mainBundle] addToLoginItems];
}

void removeOwnBundle() {
    [[NSBundle mainBundle] removeFromLoginItems];
}

} // namespace tarnwick::standins
