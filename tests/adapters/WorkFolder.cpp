#include "tests/adapters/WorkFolder.h"

#include "adapters/foundation/Adapters.h"
#include "tests/adapters/Waiting.h"

#include <cstdlib>
#include <fstream>
#include <unistd.h>

namespace tarnwick::testing {

WorkFolder::WorkFolder(Implementation implementation) {
    if (implementation == Implementation::inMemory) {
        memoryFiles_.folders.insert(path_);
        return;
    }
    realFiles_ = makeFileManager();
    realContents_ = makeFileContents();
    path_ = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/contract-XXXXXX";
    EXPECT_NE(mkdtemp(path_.data()), nullptr);
}

WorkFolder::~WorkFolder() {
    if (realFiles_) {
        realFiles_->remove(path_);
    }
}

void WorkFolder::write(const std::string& name, const std::string& content) {
    if (realFiles_) {
        std::ofstream(at(name)) << content;
    } else {
        memoryFiles_.files[at(name)] = content;
    }
}

std::string WorkFolder::read(const std::string& name) {
    if (!realFiles_) {
        return memoryFiles_.files.at(at(name));
    }
    return contentsOfFile(at(name));
}

void WorkFolder::link(const std::string& name, const std::string& targetPath) {
    if (realFiles_) {
        EXPECT_EQ(symlink(targetPath.c_str(), at(name).c_str()), 0);
    } else {
        memoryFiles_.links[at(name)] = targetPath;
    }
}

} // namespace tarnwick::testing
