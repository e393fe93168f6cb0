#pragma once

#include "platform/FileTrees.h"
#include "tests/support/InMemoryFiles.h"

namespace tarnwick::testing {

/// The same file tree as `files`. Logs "write tree PATH", also when it fails.
class InMemoryFileTrees final : public FileTrees {
public:
    InMemoryFileTrees(CallLog& log, InMemoryFiles& files) : log_(log), files_(files) {}

    /// What is no file and no folder.
    std::set<std::string> links;

    std::optional<PlistValue> read(const std::string& path) const override;
    bool write(const std::string& path, const PlistValue& tree) override;
    std::vector<std::string> namesIn(const std::string& folder) const override;

private:
    bool put(const std::string& path, const PlistValue& tree);

    CallLog& log_;
    InMemoryFiles& files_;
};

} // namespace tarnwick::testing
