#import "adapters/macos/NSBundle+LoginItem.h"

#include "platform/LoginItems.h"
#include "platform/SystemServices.h"

namespace tarnwick {
namespace {

class SessionLoginItems final : public LoginItems {
public:
    bool isLoginItem() const override { return [[NSBundle mainBundle] isLoginItem]; }
    void add() override { [[NSBundle mainBundle] addToLoginItems]; }
    void remove() override { [[NSBundle mainBundle] removeFromLoginItems]; }
};

} // namespace

std::unique_ptr<LoginItems> makeLoginItems() {
    return std::make_unique<SessionLoginItems>();
}

} // namespace tarnwick
