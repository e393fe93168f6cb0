#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

class FileManager;
class KnownFolders;
class Process;

/// Where files wait that a step of undo may bring back: a folder of this process in the temporary folder,
/// there from the first file on until the process ends. Each file or folder has a place of its own in it.
class HeldFiles {
public:
    HeldFiles(FileManager& files, const KnownFolders& folders, const Process& process)
        : files_(files), folders_(folders), process_(process) {}

    /// A path at which nothing is yet; nothing when the folder cannot be made.
    [[nodiscard]] std::optional<std::string> newPlace();
    /// Moves a file, or a folder with its contents, here and gives its place; nothing when that fails, and
    /// then it is where it was.
    [[nodiscard]] std::optional<std::string> take(const std::string& path);
    /// Whether this is a place of this process or of an earlier one.
    [[nodiscard]] bool isPlace(std::string_view path) const;

    /// When the process ends: nothing is left of the folder.
    void removeAll();
    /// At a start, before anything is held: removes the folders of processes that are gone.
    void removeAbandoned();

private:
    [[nodiscard]] std::string folderOf(int process) const;

    FileManager& files_;
    const KnownFolders& folders_;
    const Process& process_;
    int places_ = 0;
};

} // namespace tarnwick
