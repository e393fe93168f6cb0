#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/ShellTask.h"

namespace tarnwick {
namespace {

class FoundationTask final : public ShellTask {
public:
    PlistData output(const std::string &launchPath, const std::vector<std::string> &arguments) override {
        const auto task = ObjectPointer<NSTask>::adopting([[NSTask alloc] init]);
        NSMutableArray *texts = [NSMutableArray array];
        for (const auto &argument : arguments) {
            [texts addObject:toNSString(argument)];
        }
        NSPipe *pipe = [NSPipe pipe];
        [task.get() setLaunchPath:toNSString(launchPath)];
        [task.get() setArguments:texts];
        [task.get() setStandardOutput:pipe];
        [task.get() launch];
        return toPlistData([[pipe fileHandleForReading] readDataToEndOfFile]);
    }
};

} // namespace

std::unique_ptr<ShellTask> makeShellTask() {
    return std::make_unique<FoundationTask>();
}

} // namespace tarnwick
