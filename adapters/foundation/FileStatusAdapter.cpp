#include "adapters/foundation/Adapters.h"
#include "platform/FileStatus.h"

#include <cerrno>
#include <sys/stat.h>

namespace tarnwick {
namespace {

class PosixFileStatus final : public FileStatus {
public:
    FileKind kindOf(const std::string& path) const override {
        struct stat status {};
        if (::stat(path.c_str(), &status) == 0) {
            return S_ISDIR(status.st_mode) ? FileKind::folder : FileKind::file;
        }
        return errno == ENOENT || errno == ENOTDIR ? FileKind::missing : FileKind::unknown;
    }
};

} // namespace

std::unique_ptr<FileStatus> makeFileStatus() {
    return std::make_unique<PosixFileStatus>();
}

} // namespace tarnwick
