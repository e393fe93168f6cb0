#pragma once

#include "platform/KnownFolders.h"

#include <string>

namespace tarnwick::testing {

inline const std::string templateFolder = "/container/Templates/CreateNewFile";
/// Where files are held for the first step that can be undone.
inline const std::string heldFolder = "/tmp/org.halvane.Tarnwick.undo-100";

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

} // namespace tarnwick::testing
