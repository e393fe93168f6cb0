#include "platform/LaunchServices.h"
#include "platform/SystemServices.h"

namespace tarnwick {
namespace {

/// Linux keeps no register of applications by bundle identifier.
class NoRegister final : public LaunchServices {
public:
    RegisteredApplications applications(std::string_view) const override { return {}; }
};

} // namespace

std::unique_ptr<LaunchServices> makeLaunchServices() {
    return std::make_unique<NoRegister>();
}

} // namespace tarnwick
