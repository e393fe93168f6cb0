#include "adapters/foundation/RegularFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tarnwick {
namespace {

/// An open file, closed with the object.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) {
            ::close(number_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int number() const { return number_; }

private:
    int number_;
};

bool writeAll(int descriptor, const PlistData& content) {
    const auto* bytes = content.bytes();
    for (std::size_t left = content.size(); left > 0;) {
        const auto written = ::write(descriptor, bytes, left);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return false;
        }
        bytes += written;
        left -= static_cast<std::size_t>(written);
    }
    return true;
}

} // namespace

std::variant<PlistData, FileFault> readRegularFile(const std::string& path, std::size_t mostBytes) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file.number() < 0) {
        return errno == ELOOP ? FileFault::notRegular : FileFault::unreadable;
    }
    struct stat status {};
    if (::fstat(file.number(), &status) != 0) {
        return FileFault::unreadable;
    }
    if (!S_ISREG(status.st_mode)) {
        return FileFault::notRegular;
    }
    if (static_cast<std::uint64_t>(status.st_size) > mostBytes) {
        return FileFault::tooLarge;
    }
    // One byte more tells a file that grows meanwhile.
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(status.st_size) + 1);
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const auto count = ::read(file.number(), bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return FileFault::unreadable;
        }
        if (count == 0) {
            bytes.resize(filled);
            return PlistData(std::move(bytes));
        }
        filled += static_cast<std::size_t>(count);
    }
    return FileFault::unreadable;
}

bool writeNewFile(const std::string& path, const PlistData& content) {
    constexpr mode_t readableByAll = 0666;
    const Descriptor file(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, readableByAll));
    if (file.number() < 0) {
        return false;
    }
    if (writeAll(file.number(), content)) {
        return true;
    }
    ::unlink(path.c_str());
    return false;
}

} // namespace tarnwick
