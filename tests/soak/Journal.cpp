#include "tests/soak/Journal.h"

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace tarnwick::soak {

std::string setting(const char* name, const char* otherwise) {
    const auto* value = std::getenv(name);
    return value ? value : otherwise;
}

Journal::Journal(const std::string& path)
    : descriptor_(open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600)) {}

Journal::~Journal() {
    close(descriptor_);
}

void Journal::write(const std::string& line) {
    const auto whole = line + "\n";
    if (::write(descriptor_, whole.data(), whole.size()) < 0) {
        std::abort();
    }
}

} // namespace tarnwick::soak
