#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/OpenPanel.h"

#import <AppKit/AppKit.h>

namespace tarnwick {
namespace {

NSURL *startURL(const OpenPanelRequest &request) {
    NSString *start = toNSString(*request.startFolder);
    return request.startFolderIsURLText ? [NSURL URLWithString:start] : [NSURL fileURLWithPath:start];
}

NSArray *toTypes(const std::vector<std::string> &types) {
    NSMutableArray *result = [NSMutableArray array];
    for (const auto &type : types) {
        [result addObject:toNSString(type)];
    }
    return result;
}

OpenPanelAnswer answerOf(NSOpenPanel *panel, NSInteger result) {
    OpenPanelAnswer answer;
    answer.confirmed = result == NSModalResponseOK;
    if (answer.confirmed) {
        for (NSURL *url in [panel URLs]) {
            answer.paths.push_back(toString([url path]));
        }
    }
    return answer;
}

class AppKitOpenPanel final : public OpenPanel {
public:
    void begin(
        const OpenPanelRequest &request, std::function<void(const OpenPanelAnswer &)> completion) override {
        NSOpenPanel *panel = [NSOpenPanel openPanel];
        [panel setCanChooseFiles:request.canChooseFiles];
        [panel setCanChooseDirectories:request.canChooseDirectories];
        [panel setCanCreateDirectories:request.canCreateDirectories];
        [panel setAllowsMultipleSelection:request.allowsMultipleSelection];
        [panel setExtensionHidden:request.extensionsHidden];
        [panel
            setAllowedFileTypes:request.allowedFileTypes.empty() ? nil : toTypes(request.allowedFileTypes)];
        if (request.startFolder) {
            [panel setDirectoryURL:startURL(request)];
        }
        if (request.prompt) {
            [panel setPrompt:toNSString(*request.prompt)];
        }
        [panel beginWithCompletionHandler:^(NSInteger result) {
            completion(answerOf(panel, result));
        }];
    }
};

} // namespace

std::unique_ptr<OpenPanel> makeOpenPanel() {
    return std::make_unique<AppKitOpenPanel>();
}

} // namespace tarnwick
