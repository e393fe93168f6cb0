#pragma once

#include "platform/FileManager.h"
#include "tests/support/CallLog.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// A file tree: paths with their contents; folders are paths of their own. Logs "remove PATH",
/// "create folder PATH", "copy FROM -> TO", "move FROM -> TO" and "rename FROM -> TO", also when they fail.
class InMemoryFiles final : public FileManager {
public:
    explicit InMemoryFiles(CallLog& log) : log_(log) {}

    std::map<std::string, std::string> files;
    std::set<std::string> folders;
    /// Links, and the paths of what they lead to.
    std::map<std::string, std::string> links;
    /// Destinations (or removed or created paths) at which the operation fails.
    std::set<std::string> failing;
    /// Folders on volumes of their own.
    std::set<std::string> volumes;
    /// What stands at a path whatever the tree says.
    std::map<std::string, FileKind> answers;
    /// Told of each path before it is looked at.
    std::function<void(const std::string& path)> asking;
    /// The paths that were looked at.
    mutable std::vector<std::string> asked;

    bool exists(const std::string& path) const override;
    FileKind kindOf(const std::string& path) const override;
    std::vector<std::string> namesIn(const std::string& folder) const override;
    bool remove(const std::string& path) override;
    bool createFolder(const std::string& path) override;
    bool copy(const std::string& from, const std::string& to) override;
    bool move(const std::string& from, const std::string& to) override;
    bool rename(const std::string& from, const std::string& to) override;

    /// Whether something could be put there: nothing is, in a folder that is, and it is not to fail.
    [[nodiscard]] bool canPutAt(const std::string& path) const;
    /// Takes away what is there, with its contents, and logs nothing.
    void erase(const std::string& path);

private:
    [[nodiscard]] std::string volumeOf(const std::string& path) const;
    /// What a path stands for when it is a link.
    [[nodiscard]] std::string targetOf(const std::string& path) const;
    [[nodiscard]] bool isThere(const std::string& path) const;
    [[nodiscard]] bool canPut(const std::string& from, const std::string& to) const;
    void put(const std::string& from, const std::string& to);
    CallLog& log_;
};

} // namespace tarnwick::testing
