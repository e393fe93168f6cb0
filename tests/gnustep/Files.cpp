#include "Files.h"

#include "Probe.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace tarnwick::probe {

bool exists(const std::string& path) {
    return access(path.c_str(), F_OK) == 0;
}

std::string contentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

void writeContent(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

void turnReadingDirection() {
    writeContent(defaultsFolder() + "/NSGlobalDomain.plist",
        "{ AppleTextDirection = YES; NSForceRightToLeftWritingDirection = YES; }");
}

std::string outputOf(const std::string& command) {
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) {
        ADD_FAILURE() << "cannot run " << command;
        return {};
    }
    std::string output;
    char buffer[512];
    while (const auto count = std::fread(buffer, 1, sizeof buffer, pipe)) {
        output.append(buffer, count);
    }
    EXPECT_EQ(pclose(pipe), 0) << command;
    return output;
}

} // namespace tarnwick::probe
