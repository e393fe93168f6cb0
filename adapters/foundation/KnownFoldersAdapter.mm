#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/KnownFolders.h"

#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

class FoundationFolders final : public KnownFolders {
public:
    std::optional<std::string> groupContainer(std::string_view identifier) const override {
        NSURL *folder = [[NSFileManager defaultManager]
            containerURLForSecurityApplicationGroupIdentifier:toNSString(identifier)];
        return folder ? std::optional(toString([folder path])) : std::nullopt;
    }
    FolderResult applicationScripts() override {
        NSError *error = nil;
        NSURL *folder = [[NSFileManager defaultManager] URLForDirectory:NSApplicationScriptsDirectory
                                                               inDomain:NSUserDomainMask
                                                      appropriateForURL:nil
                                                                 create:YES
                                                                  error:&error];
        if (!folder) {
            return {std::nullopt, described(error)};
        }
        return {toString([folder path]), ""};
    }
    std::string temporary() const override {
        auto path = toString(NSTemporaryDirectory());
        if (path.ends_with('/')) {
            path.pop_back();
        }
        return path;
    }
    std::string library() const override {
        NSArray *folders = NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES);
        return [folders count] > 0 ? toString([folders objectAtIndex:0]) : std::string();
    }
    std::string userName() const override { return toString(NSUserName()); }
};

} // namespace

std::unique_ptr<KnownFolders> makeKnownFolders() {
    return std::make_unique<FoundationFolders>();
}

} // namespace tarnwick
