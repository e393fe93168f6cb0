#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/Panels.h"

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

class AppKitPanels final : public Panels {
public:
    long runAlert(const AlertRequest &request) override {
        const auto alert = ObjectPointer<NSAlert>::adopting([[NSAlert alloc] init]);
        if (request.style == AlertStyle::warning) {
            [alert.get() setAlertStyle:NSAlertStyleWarning];
        }
        if (!request.messageText.empty()) {
            [alert.get() setMessageText:toNSString(request.messageText)];
        }
        [alert.get() setInformativeText:toNSString(request.informativeText)];
        for (const auto &title : request.buttons) {
            [alert.get() addButtonWithTitle:toNSString(title)];
        }
        return [alert.get() runModal];
    }

    void choose(
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
        [panel setMessage:toNSString(request.message)];
        [panel beginWithCompletionHandler:^(NSInteger result) {
            completion(answerOf(panel, result));
        }];
    }

    void choosePlace(const SavePanelRequest &request,
        std::function<void(const std::optional<std::string> &)> completion) override {
        NSSavePanel *panel = [NSSavePanel savePanel];
        [panel setAllowedFileTypes:toTypes({request.fileType})];
        [panel setNameFieldStringValue:toNSString(request.name)];
        [panel setCanCreateDirectories:YES];
        [panel setMessage:toNSString(request.message)];
        [panel setPrompt:toNSString(request.prompt)];
        [panel setDirectoryURL:[NSURL fileURLWithPath:toNSString(request.startFolder)]];
        [panel beginWithCompletionHandler:^(NSInteger result) {
            const bool isConfirmed = result == NSModalResponseOK;
            completion(isConfirmed ? std::optional(toString([[panel URL] path])) : std::nullopt);
        }];
    }
};

} // namespace

std::unique_ptr<Panels> makePanels() {
    return std::make_unique<AppKitPanels>();
}

} // namespace tarnwick
