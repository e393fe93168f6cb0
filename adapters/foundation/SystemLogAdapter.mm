#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/SystemLog.h"

namespace tarnwick {
namespace {

class FoundationLog final : public SystemLog {
public:
    void write(std::string_view line) override { NSLog(@"%@", toNSString(line)); }
};

} // namespace

std::unique_ptr<SystemLog> makeSystemLog() {
    return std::make_unique<FoundationLog>();
}

} // namespace tarnwick
