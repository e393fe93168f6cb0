#pragma once

#include "tests/adapters/Contract.h"
#include "tests/support/InMemoryFileContents.h"

#include <memory>
#include <string>

namespace tarnwick::testing {

/// Both ports of files in either implementation, with a folder to work in.
class WorkFolder {
public:
    explicit WorkFolder(Implementation implementation);
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    [[nodiscard]] FileManager& files() { return realFiles_ ? *realFiles_ : memoryFiles_; }
    [[nodiscard]] FileContents& contents() { return realContents_ ? *realContents_ : memoryContents_; }
    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] std::string at(const std::string& name) const { return path_ + "/" + name; }

    // What the ports have no operation for, by names in the folder.
    void write(const std::string& name, const std::string& content);
    [[nodiscard]] std::string read(const std::string& name);
    void link(const std::string& name, const std::string& targetPath);

private:
    CallLog log_;
    InMemoryFiles memoryFiles_{log_};
    InMemoryFileContents memoryContents_{log_, memoryFiles_};
    std::unique_ptr<FileManager> realFiles_;
    std::unique_ptr<FileContents> realContents_;
    std::string path_ = "/work";
};

} // namespace tarnwick::testing
