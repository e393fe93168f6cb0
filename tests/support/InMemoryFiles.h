#pragma once

#include "platform/ApplicationBundle.h"
#include "platform/FileManager.h"
#include "platform/FileStatus.h"
#include "platform/KnownFolders.h"
#include "tests/support/CallLog.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// A file tree: paths with their contents; folders are paths of their own. Logs "remove PATH",
/// "create folder PATH", "copy FROM -> TO", "move FROM -> TO", "rename FROM -> TO" and "parse PATH", also
/// when they fail.
class InMemoryFiles final : public FileManager {
public:
    explicit InMemoryFiles(CallLog& log) : log_(log) {}

    std::map<std::string, std::string> files;
    std::set<std::string> folders;
    /// Destinations (or removed or created paths) at which the operation fails.
    std::set<std::string> failing;
    /// Folders on volumes of their own.
    std::set<std::string> volumes;
    /// What property-list files hold.
    std::map<std::string, PlistValue> propertyLists;

    bool exists(const std::string& path) const override;
    bool remove(const std::string& path) override;
    bool createFolder(const std::string& path) override;
    bool copy(const std::string& from, const std::string& to) override;
    bool move(const std::string& from, const std::string& to) override;
    bool rename(const std::string& from, const std::string& to) override;
    std::optional<PlistValue> propertyList(const std::string& path) const override;

    /// The names of the files directly in a folder, sorted.
    [[nodiscard]] std::set<std::string> namesIn(const std::string& folder) const;
    /// Takes away what is there, with its contents, and logs nothing.
    void erase(const std::string& path);

private:
    [[nodiscard]] std::string volumeOf(const std::string& path) const;
    [[nodiscard]] bool canPut(const std::string& from, const std::string& to) const;
    void put(const std::string& from, const std::string& to);
    CallLog& log_;
};

/// What stands where among the files in memory, unless a test says otherwise. Keeps the paths that are asked.
class InMemoryFileStatus final : public FileStatus {
public:
    explicit InMemoryFileStatus(const InMemoryFiles& files) : files_(files) {}

    std::map<std::string, FileKind> answers;
    /// Told of each path before it is answered.
    std::function<void(const std::string& path)> asking;
    mutable std::vector<std::string> asked;

    FileKind kindOf(const std::string& path) const override;

private:
    const InMemoryFiles& files_;
};

/// Folders at fixed places: the group container at "/container", the scripts at "/scripts", the user "anna".
class InMemoryFolders final : public KnownFolders {
public:
    std::optional<std::string> container = "/container";
    FolderResult scripts{"/scripts", ""};
    std::string user = "anna";
    std::string temporaryFolder = "/tmp";
    std::string libraryFolder = "/Users/anna/Library";
    /// The identifier last asked for.
    mutable std::string askedGroup;

    std::optional<std::string> groupContainer(std::string_view identifier) const override {
        askedGroup = identifier;
        return container;
    }
    FolderResult applicationScripts() override { return scripts; }
    std::string temporary() const override { return temporaryFolder; }
    std::string library() const override { return libraryFolder; }
    std::string userName() const override { return user; }
};

/// Resources at "/resources"; every text is localised to itself unless `texts` says otherwise.
class InMemoryBundle final : public ApplicationBundle {
public:
    std::map<std::string, std::string, std::less<>> texts;
    std::string version = "1.2.3";
    bool loginItem = false;
    bool extension = true;

    std::string localized(std::string_view key) const override {
        const auto found = texts.find(key);
        return found == texts.end() ? std::string(key) : found->second;
    }
    std::string path() const override { return "/Applications/Tarnwick.app"; }
    bool carriesExtension() const override { return extension; }
    std::string resourceFolder() const override { return "/resources"; }
    std::string plugInsFolder() const override { return "/app/PlugIns"; }
    std::string shortVersion() const override { return version; }
    bool isLoginItem() const override { return loginItem; }
};

} // namespace tarnwick::testing
