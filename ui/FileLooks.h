#pragma once

#include "platform/FileManager.h"

#include <set>
#include <string>
#include <unordered_map>

namespace tarnwick {

class RunLoop;

/// What is known of the files and folders that rules stand for. Everything runs on one thread, so a volume
/// that let a look wait is spared: it is not looked at again until the user comes back to the application.
class FileLooks {
public:
    FileLooks(const FileManager& files, const RunLoop& clock) : files_(files), clock_(clock) {}

    /// As last seen; unknown when it never was. Looks at nothing.
    [[nodiscard]] FileKind known(const std::string& path) const;
    void look(const std::string& path);
    /// From now on slow volumes are looked at again.
    void forgetSlowVolumes() { slowVolumes_.clear(); }

private:
    const FileManager& files_;
    const RunLoop& clock_;
    std::unordered_map<std::string, FileKind> known_;
    std::set<std::string, std::less<>> slowVolumes_;
};

} // namespace tarnwick
