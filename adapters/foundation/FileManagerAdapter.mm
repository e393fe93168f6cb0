#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/FileTrees.h"
#include "platform/FileManager.h"

#import <Foundation/Foundation.h>

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

namespace tarnwick {
namespace {

class FoundationFileManager final : public FileManager {
public:
    bool exists(const std::string &path) const override {
        return [manager() fileExistsAtPath:toNSString(path)];
    }
    FileKind kindOf(const std::string &path) const override {
        struct stat status {};
        if (::stat(path.c_str(), &status) == 0) {
            return S_ISDIR(status.st_mode) ? FileKind::folder : FileKind::file;
        }
        return errno == ENOENT || errno == ENOTDIR ? FileKind::missing : FileKind::unknown;
    }
    std::vector<std::string> namesIn(const std::string &folder) const override {
        return namesInFolder(folder).value_or(std::vector<std::string>());
    }
    bool remove(const std::string &path) override {
        return [manager() removeItemAtPath:toNSString(path) error:nullptr];
    }
    bool createFolder(const std::string &path) override {
        const bool isDone = [manager() createDirectoryAtPath:toNSString(path)
                                 withIntermediateDirectories:YES
                                                  attributes:nil
                                                       error:nullptr];
        // GNUstep takes a file in the folder's place for one.
        return isDone && kindOf(path) == FileKind::folder;
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

private:
    static NSFileManager *manager() { return [NSFileManager defaultManager]; }
};

} // namespace

std::unique_ptr<FileManager> makeFileManager() {
    return std::make_unique<FoundationFileManager>();
}

} // namespace tarnwick
