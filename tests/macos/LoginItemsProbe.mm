#include "LoginItemsProbe.h"

#import "adapters/macos/NSBundle+LoginItem.h"

namespace tarnwick::standins {

void addOwnBundle() {
    [[NSBundle mainBundle] addToLoginItems];
}

void removeOwnBundle() {
    [[NSBundle mainBundle] removeFromLoginItems];
}

} // namespace tarnwick::standins
