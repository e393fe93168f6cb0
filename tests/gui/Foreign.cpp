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

std::string evaluate(const std::string& domain, const std::string& expression) {
    const auto file = sandboxFolder() + "/defaults/" + domain + ".plist";
    return outputOf("python3 -c " +
                    quoted("import os, plistlib, sys\n"
                           "path, expression = sys.argv[1:]\n"
                           "found = os.path.exists(path)\n"
                           "d = plistlib.load(open(path, 'rb')) if found else {}\n"
                           "print(repr(eval(expression)) if found else '(no file)')") +
                    " " + quoted(file) + " " + quoted(expression) + " 2>&1");
}

} // namespace

std::string sandboxFolder() {
    const auto* folder = std::getenv("TARNWICK_USER_FOLDER");
    return folder ? folder : "";
}

std::string local(const std::string& expression) {
    return evaluate("org.halvane.Tarnwick", expression);
}

std::string shared(const std::string& expression) {
    return evaluate("H7Q2ZK5RX9.org.halvane.Tarnwick", expression);
}

std::string containerFolder(const std::string& relativePath) {
    const auto folder =
        sandboxFolder() + "/library/Group Containers/H7Q2ZK5RX9.org.halvane.Tarnwick/" + relativePath;
    return outputOf("python3 -c " + quoted("import os, sys; print(sorted(os.listdir(sys.argv[1])))") + " " +
                    quoted(folder) + " 2>&1");
}

} // namespace tarnwick::gui
