#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/SystemAdapters.h"
#include "platform/Process.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>

namespace tarnwick {
namespace {

class FoundationProcess final : public Process {
public:
    void exit(int status) override { std::exit(status); }
    int identifier() const override { return [[NSProcessInfo processInfo] processIdentifier]; }
    bool isRunning(int identifier) const override {
        // Another user's process may not be signalled.
        return ::kill(identifier, 0) == 0 || errno == EPERM;
    }
    bool isSystemAtLeast(int major, int minor, int patch) const override {
        return tarnwick::isSystemAtLeast(major, minor, patch);
    }
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

std::unique_ptr<Process> makeProcess() {
    return std::make_unique<FoundationProcess>();
}

} // namespace tarnwick
