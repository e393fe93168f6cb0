#include "platform/SystemVersion.h"
#include "platform/SystemServices.h"

#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

class ProcessSystemVersion final : public SystemVersion {
public:
    bool isAtLeast(int major, int minor, int patch) const override {
        const NSOperatingSystemVersion wanted = {major, minor, patch};
        return [[NSProcessInfo processInfo] isOperatingSystemAtLeastVersion:wanted];
    }
};

} // namespace

std::unique_ptr<SystemVersion> makeSystemVersion() {
    return std::make_unique<ProcessSystemVersion>();
}

} // namespace tarnwick
