#pragma once

#include "platform/FileContents.h"
#include "tests/support/InMemoryFiles.h"

#include <map>
#include <optional>
#include <string>

namespace tarnwick::testing {

/// What the files in `files` hold. Logs "write tree PATH", "read list PATH", "write list PATH" and "parse
/// PATH", also when they fail.
class InMemoryFileContents final : public FileContents {
public:
    InMemoryFileContents(CallLog& log, InMemoryFiles& files) : log_(log), files_(files) {}

    /// What writing a list gives instead of a file.
    std::optional<ListFileWriting> trouble;

    /// A file that holds a list, or one that is at fault.
    void putList(const std::string& path, ListFileContent content);
    /// Null when there is no file that holds one.
    [[nodiscard]] const PlistValue* listAt(const std::string& path) const;

    std::optional<PlistValue> readTree(const std::string& path) const override;
    bool writeTree(const std::string& path, const PlistValue& tree) override;
    ListFileContent readList(const std::string& path) const override;
    ListFileWriting writeList(const std::string& path, const PlistValue& value) override;
    std::optional<PlistValue> propertyList(const std::string& path) const override;

private:
    bool put(const std::string& path, const PlistValue& tree);

    /// What a file holds as a list; null for any other file.
    [[nodiscard]] const ListFileContent* contentOf(const std::string& path) const;

    CallLog& log_;
    InMemoryFiles& files_;
    /// The text of a file stands for a list, so the list goes where the file goes.
    std::map<std::string, ListFileContent> lists_;
    int written_ = 0;
};

} // namespace tarnwick::testing
