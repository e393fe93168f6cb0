// Python's reader of property lists runs beside this program and answers through two pipes.

#include "SettingsReaders.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnwick::fuzz {
namespace {

/// All of so many bytes, with `call`, read or write; the alarm that watches over each input may come in
/// between.
template <typename Byte, typename Call>
bool passAll(Call call, int end, Byte* bytes, std::size_t size) {
    while (size > 0) {
        const auto passed = call(end, bytes, size);
        if (passed < 0 && errno == EINTR) {
            continue;
        }
        if (passed <= 0) {
            return false;
        }
        bytes += passed;
        size -= static_cast<std::size_t>(passed);
    }
    return true;
}

class Python {
public:
    Python() {
        std::array<int, 2> down{};
        std::array<int, 2> up{};
        if (pipe(down.data()) != 0 || pipe(up.data()) != 0) {
            giveUp();
        }
        const auto child = fork();
        if (child == 0) {
            dup2(down[0], STDIN_FILENO);
            dup2(up[1], STDOUT_FILENO);
            for (const int end : {down[0], down[1], up[0], up[1]}) {
                close(end);
            }
            execlp("python3", "python3", TARNWICK_PLISTLIB_READER, nullptr);
            _exit(EXIT_FAILURE);
        }
        close(down[0]);
        close(up[1]);
        requests_ = down[1];
        answers_ = up[0];
        if (child < 0) {
            giveUp();
        }
    }

    /// The answer to a request; both begin with their length.
    std::string ask(const std::string& request) {
        auto length = static_cast<std::uint32_t>(request.size());
        std::string answer;
        auto* const lengthBytes = reinterpret_cast<char*>(&length);
        if (!passAll(write, requests_, lengthBytes, sizeof length) ||
            !passAll(write, requests_, request.data(), request.size()) ||
            !passAll(read, answers_, lengthBytes, sizeof length)) {
            giveUp();
        }
        answer.resize(length);
        if (!passAll(read, answers_, answer.data(), length)) {
            giveUp();
        }
        return answer;
    }

private:
    [[noreturn]] static void giveUp() {
        std::fputs("no answer from python3\n", stderr);
        std::abort();
    }

    int requests_ = -1;
    int answers_ = -1;
};

} // namespace

Description readByPlistlib(const std::string& bytes) {
    static Python python;
    const auto answer = python.ask(bytes);
    return answer.empty() ? std::nullopt : Description(answer);
}

} // namespace tarnwick::fuzz
