#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/FileManager.h"

#import <Foundation/Foundation.h>

namespace tarnwick {
namespace {

class FoundationFileManager final : public FileManager {
public:
    bool exists(const std::string &path) const override {
        return [manager() fileExistsAtPath:toNSString(path)];
    }
    bool remove(const std::string &path) override {
        return [manager() removeItemAtPath:toNSString(path) error:nullptr];
    }
    bool createFolder(const std::string &path) override {
        return [manager() createDirectoryAtPath:toNSString(path)
                    withIntermediateDirectories:YES
                                     attributes:nil
                                          error:nullptr];
    }
    bool copy(const std::string &from, const std::string &to) override {
        return !exists(to) && [manager() copyItemAtPath:toNSString(from) toPath:toNSString(to) error:nullptr];
    }
    bool move(const std::string &from, const std::string &to) override {
        return !exists(to) && [manager() moveItemAtPath:toNSString(from) toPath:toNSString(to) error:nullptr];
    }

private:
    static NSFileManager *manager() { return [NSFileManager defaultManager]; }
};

} // namespace

std::unique_ptr<FileManager> makeFileManager() {
    return std::make_unique<FoundationFileManager>();
}

} // namespace tarnwick
