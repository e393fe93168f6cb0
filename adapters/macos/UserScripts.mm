#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/StringConversion.h"
#import "adapters/foundation/UserScriptObjects.h"

#include "adapters/foundation/SystemAdapters.h"

#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

NSAppleEventDescriptor *appleEvent(const HandlerCallEvent &event) {
    NSAppleEventDescriptor *target =
        [NSAppleEventDescriptor descriptorWithDescriptorType:event.targetType
                                                       bytes:event.targetBytes.data()
                                                      length:event.targetBytes.size()];
    NSAppleEventDescriptor *result =
        [NSAppleEventDescriptor appleEventWithEventClass:event.eventClass
                                                 eventID:event.eventIdentifier
                                        targetDescriptor:target
                                                returnID:event.returnIdentifier
                                           transactionID:event.transactionIdentifier];
    [result setParamDescriptor:[NSAppleEventDescriptor descriptorWithString:toNSString(event.parameterText)]
                    forKeyword:event.parameterKeyword];
    return result;
}

/// A compiled AppleScript, which runs outside the sandbox.
class AppleScriptTask final : public UserScriptTask {
public:
    explicit AppleScriptTask(ObjectPointer<NSUserAppleScriptTask> task) : task_(std::move(task)) {}

    void execute(const HandlerCallEvent &event) override {
        NSUserAppleScriptTask *task = task_.get();
        [task executeWithAppleEvent:appleEvent(event)
                  completionHandler:^(NSAppleEventDescriptor *, NSError *) {
                      // What the script gives or fails with is nobody's business; but the task, of which
                      // nobody says who keeps it meanwhile, is to be there until then.
                      (void)task;
                  }];
    }

    [[nodiscard]] id object() const { return [[task_.get() retain] autorelease]; }

private:
    ObjectPointer<NSUserAppleScriptTask> task_;
};

class AppleScripts final : public UserScripts {
public:
    UserScriptTaskResult makeTask(const std::string &path) override {
        NSError *error = nil;
        NSURL *url = [NSURL fileURLWithPath:toNSString(path)];
        auto task = ObjectPointer<NSUserAppleScriptTask>::adopting(
            [[NSUserAppleScriptTask alloc] initWithURL:url error:&error]);
        if (!task.get()) {
            return {nullptr, described(error)};
        }
        return {std::make_unique<AppleScriptTask>(std::move(task)), ""};
    }
};

} // namespace

id objectOf(UserScriptTask &task) {
    return dynamic_cast<AppleScriptTask &>(task).object();
}

id objectOf(const HandlerCallEvent &event) {
    return appleEvent(event);
}

std::unique_ptr<UserScripts> makeUserScripts() {
    return std::make_unique<AppleScripts>();
}

} // namespace tarnwick
