#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/StringConversion.h"
#import "gnustep/defaults/DefaultsFiles.h"

#include "adapters/foundation/SystemAdapters.h"
#include "platform/UserScript.h"

#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

/// The folders in which the script finds the user's settings, as this process finds them.
NSDictionary *scriptEnvironment() {
    NSMutableDictionary *environment =
        [NSMutableDictionary dictionaryWithDictionary:[[NSProcessInfo processInfo] environment]];
    NSArray *libraries = NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES);
    [environment setObject:TNDefaultsFolder() forKey:@"TARNWICK_DEFAULTS_DIR"];
    if ([libraries count] > 0) {
        [environment setObject:[libraries objectAtIndex:0] forKey:@"TARNWICK_LIBRARY_DIR"];
    }
    return environment;
}

/// A POSIX shell script that is given the handler's name.
class ShellScriptTask final : public UserScriptTask {
public:
    explicit ShellScriptTask(std::string path) : path_(std::move(path)) {}

    void execute(const HandlerCallEvent &event) override {
        const auto task = ObjectPointer<NSTask>::adopting([[NSTask alloc] init]);
        [task.get() setLaunchPath:@"/bin/sh"];
        [task.get()
            setArguments:[NSArray arrayWithObjects:toNSString(path_), toNSString(event.parameterText), nil]];
        [task.get() setEnvironment:scriptEnvironment()];
        [task.get() launch];
    }

private:
    std::string path_;
};

class ShellScripts final : public UserScripts {
public:
    UserScriptTaskResult makeTask(const std::string &path) override {
        if (![[NSFileManager defaultManager] isReadableFileAtPath:toNSString(path)]) {
            return {nullptr, "no readable script at " + path};
        }
        return {std::make_unique<ShellScriptTask>(path), ""};
    }
};

} // namespace

std::unique_ptr<UserScripts> makeUserScripts() {
    return std::make_unique<ShellScripts>();
}

} // namespace tarnwick
