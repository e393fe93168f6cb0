// Python's reader of property lists runs beside this program and answers through two pipes.

#include "SettingsReaders.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnwick::fuzz {
namespace {

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
        requests_ = fdopen(down[1], "wb");
        answers_ = fdopen(up[0], "rb");
        if (child < 0 || !requests_ || !answers_) {
            giveUp();
        }
    }

    /// The answer to a request; both begin with their length.
    std::string ask(const std::string& request) {
        auto length = static_cast<std::uint32_t>(request.size());
        std::string answer;
        const bool isAsked = std::fwrite(&length, sizeof length, 1, requests_) == 1 &&
                             std::fwrite(request.data(), 1, request.size(), requests_) == request.size() &&
                             std::fflush(requests_) == 0;
        if (!isAsked || std::fread(&length, sizeof length, 1, answers_) != 1) {
            giveUp();
        }
        answer.resize(length);
        if (std::fread(answer.data(), 1, length, answers_) != length) {
            giveUp();
        }
        return answer;
    }

private:
    [[noreturn]] static void giveUp() {
        std::fputs("no answer from python3\n", stderr);
        std::abort();
    }

    std::FILE* requests_ = nullptr;
    std::FILE* answers_ = nullptr;
};

} // namespace

Description readByPlistlib(const std::string& bytes) {
    static Python python;
    const auto answer = python.ask(bytes);
    return answer.empty() ? std::nullopt : Description(answer);
}

} // namespace tarnwick::fuzz
