#import "platform/appkit/StringConversion.h"

#include "platform/SystemLog.h"
#include "platform/appkit/Adapters.h"

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
