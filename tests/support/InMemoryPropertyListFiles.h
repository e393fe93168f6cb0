#pragma once

#include "platform/PropertyListFiles.h"
#include "tests/support/CallLog.h"

#include <map>
#include <optional>
#include <string>

namespace tarnwick::testing {

/// Files that hold a list or are at fault; what is not there is unreadable. Logs "read list PATH" and "write
/// list PATH".
class InMemoryPropertyListFiles final : public PropertyListFiles {
public:
    explicit InMemoryPropertyListFiles(CallLog& log) : log_(log) {}

    std::map<std::string, ListFileContent> files;
    /// What writing gives instead of a file.
    std::optional<ListFileWriting> trouble;

    ListFileContent read(const std::string& path) const override {
        log_.add("read list " + path);
        const auto found = files.find(path);
        return found == files.end() ? ListFileFault::unreadable : found->second;
    }
    ListFileWriting write(const std::string& path, const PlistValue& value) override {
        log_.add("write list " + path);
        if (!trouble) {
            files.insert_or_assign(path, value);
        }
        return trouble.value_or(ListFileWriting::done);
    }

private:
    CallLog& log_;
};

} // namespace tarnwick::testing
