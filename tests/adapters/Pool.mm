#include "Pool.h"

#import <Foundation/Foundation.h>

namespace tarnwick::testing {

Pool::Pool() : pool_([[NSAutoreleasePool alloc] init]) {}

Pool::~Pool() {
    [(id)pool_ drain];
}

} // namespace tarnwick::testing
