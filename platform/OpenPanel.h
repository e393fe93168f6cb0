#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// How a file chooser is set up.
struct OpenPanelRequest {
    bool canChooseFiles = true;
    bool canChooseDirectories = false;
    bool canCreateDirectories = false;
    bool allowsMultipleSelection = false;
    bool extensionsHidden = false;
    /// Extensions that may be chosen, without dot; empty: any.
    std::vector<std::string> allowedFileTypes;
    /// Where the chooser starts, an absolute path; nothing: where the platform likes.
    std::optional<std::string> startFolder;
    /// `startFolder` is the text of a URL instead of a path; an invalid URL gives no starting folder.
    bool startFolderIsURLText = false;
    /// The title of the confirming button; nothing: the platform's.
    std::optional<std::string> prompt;

    bool operator==(const OpenPanelRequest&) const = default;
};

/// How a file chooser was closed: the chosen paths when it was confirmed, in the chooser's order.
struct OpenPanelAnswer {
    bool confirmed = false;
    std::vector<std::string> paths;
};

/// The platform's file chooser. Implementations: AppKit open panel, in memory.
class OpenPanel {
public:
    virtual ~OpenPanel() = default;
    /// Shows a chooser and returns at once; `completion` runs later on the main thread, once.
    virtual void begin(
        const OpenPanelRequest& request, std::function<void(const OpenPanelAnswer&)> completion) = 0;
};

} // namespace tarnwick
