#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/FileManager.h"

#import <Foundation/Foundation.h>

#include <cstdio>

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
    bool rename(const std::string &from, const std::string &to) override {
        return !exists(to) && std::rename([toNSString(from) fileSystemRepresentation],
                                  [toNSString(to) fileSystemRepresentation]) == 0;
    }
    std::optional<PlistValue> propertyList(const std::string &path) const override {
        NSData *bytes = [NSData dataWithContentsOfFile:toNSString(path)];
        if (!bytes) {
            return std::nullopt;
        }
        NSPropertyListFormat format = NSPropertyListXMLFormat_v1_0;
        NSError *error = nil;
        return toPlistValue([NSPropertyListSerialization propertyListWithData:bytes
                                                                      options:NSPropertyListImmutable
                                                                       format:&format
                                                                        error:&error]);
    }

private:
    static NSFileManager *manager() { return [NSFileManager defaultManager]; }
};

} // namespace

std::unique_ptr<FileManager> makeFileManager() {
    return std::make_unique<FoundationFileManager>();
}

} // namespace tarnwick
