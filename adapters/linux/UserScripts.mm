#import "adapters/foundation/StringConversion.h"
#import "adapters/foundation/UserScriptObjects.h"
#import "gnustep/defaults/DefaultsFiles.h"
#import "gnustep/defaults/DefaultsSchedule.h"

#include "adapters/foundation/SystemAdapters.h"

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

NSString *textOf(FourCharacterCode code) {
    return
        [NSString stringWithFormat:@"%c%c%c%c", code >> 24, code >> 16 & 0xFF, code >> 8 & 0xFF, code & 0xFF];
}

/// A POSIX shell script that is given the handler's name.
class ShellScriptTask final : public UserScriptTask {
public:
    explicit ShellScriptTask(std::string path) : path_(std::move(path)) {}

    void execute(const HandlerCallEvent &event) override {
        NSTask *task = object();
        [task setArguments:[[task arguments] arrayByAddingObject:toNSString(event.parameterText)]];
        // On macOS every setting has left the process by now. Here a write still to come would bring back
        // what the script removes.
        TNWriteAllDefaults();
        [task launch];
    }

    [[nodiscard]] NSTask *object() const {
        NSTask *task = [[[NSTask alloc] init] autorelease];
        [task setLaunchPath:@"/bin/sh"];
        [task setArguments:[NSArray arrayWithObject:toNSString(path_)]];
        [task setEnvironment:scriptEnvironment()];
        return task;
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

id objectOf(UserScriptTask &task) {
    return dynamic_cast<ShellScriptTask &>(task).object();
}

id objectOf(const HandlerCallEvent &event) {
    return [NSDictionary dictionaryWithObjectsAndKeys:textOf(event.eventClass), @"eventClass",
                         textOf(event.eventIdentifier), @"eventID", toNSString(event.parameterText),
                         textOf(event.parameterKeyword), nil];
}

std::unique_ptr<UserScripts> makeUserScripts() {
    return std::make_unique<ShellScripts>();
}

} // namespace tarnwick
