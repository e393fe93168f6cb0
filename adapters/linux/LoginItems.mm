#include "platform/LoginItems.h"
#include "platform/SystemServices.h"

#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

/// Linux sessions have no list of login items like the one meant here.
class NoLoginItems final : public LoginItems {
public:
    bool isLoginItem() const override { return false; }
    void add() override { NSLog(@"no login items on this system: not added"); }
    void remove() override { NSLog(@"no login items on this system: not removed"); }
};

} // namespace

std::unique_ptr<LoginItems> makeLoginItems() {
    return std::make_unique<NoLoginItems>();
}

} // namespace tarnwick
