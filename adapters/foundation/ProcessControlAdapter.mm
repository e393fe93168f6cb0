#include "adapters/foundation/Adapters.h"
#include "platform/ProcessControl.h"

#include <cstdlib>

namespace tarnwick {
namespace {

class RunningProcess final : public ProcessControl {
public:
    void exit(int status) override { std::exit(status); }
};

} // namespace

std::unique_ptr<ProcessControl> makeProcessControl() {
    return std::make_unique<RunningProcess>();
}

} // namespace tarnwick
