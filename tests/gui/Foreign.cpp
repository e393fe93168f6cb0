#include "tests/gui/Foreign.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace tarnwick::gui {
namespace {

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const auto character : text) {
        result += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return result + "'";
}

std::string outputOf(const std::string& command) {
    auto* pipe = popen(command.c_str(), "r");
    std::string output;
    std::array<char, 4096> buffer{};
    while (const auto count = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
        output.append(buffer.data(), count);
    }
    pclose(pipe);
    while (!output.empty() && output.back() == '\n') {
        output.pop_back();
    }
    return output;
}

/// What the reader answers.
std::string found(const std::string& what, const std::string& where) {
    return outputOf(TARNWICK_STORES " " + quoted(what) + " " + quoted(where) + " 2>&1");
}

std::string namesIn(const std::string& list, std::optional<int> count) {
    const auto slice = count ? "[:" + std::to_string(*count) + "]" : "";
    return "[r['displayName'] for r in d['" + list + "']]" + slice;
}

} // namespace

std::string sandboxFolder() {
    const auto* folder = std::getenv("TARNWICK_USER_FOLDER");
    return folder ? folder : "";
}

std::string local(const std::string& expression) {
    return found("org.halvane.Tarnwick", expression);
}

std::string shared(const std::string& expression) {
    return found("H7Q2ZK5RX9.org.halvane.Tarnwick", expression);
}

std::string localNames(const std::string& list, std::optional<int> count) {
    return local(namesIn(list, count));
}

std::string sharedNames(const std::string& list, std::optional<int> count) {
    return shared(namesIn(list, count));
}

std::string containerFolder(const std::string& relativePath) {
    return found("--container", relativePath);
}

} // namespace tarnwick::gui
