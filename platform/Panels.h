#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

enum class AlertStyle { standard, warning };

/// A modal alert. An empty message text is left to the platform; no button titles: the platform's own one.
struct AlertRequest {
    AlertStyle style = AlertStyle::standard;
    std::string messageText;
    std::string informativeText;
    std::vector<std::string> buttons;

    bool operator==(const AlertRequest&) const = default;
};

/// The answer of the first button; the others count up from it.
inline constexpr long alertFirstButton = 1000;

/// How a file chooser is set up.
struct OpenPanelRequest {
    bool canChooseFiles = true;
    bool canChooseDirectories = false;
    bool canCreateDirectories = false;
    bool allowsMultipleSelection = false;
    bool extensionsHidden = false;
    /// Extensions that may be chosen, without dot; empty: any.
    std::vector<std::string> allowedFileTypes;
    /// Where the chooser starts, an absolute path; nothing, or a folder that is not there: where the platform
    /// likes.
    std::optional<std::string> startFolder;
    /// `startFolder` is the text of a URL instead of a path; an invalid URL gives no starting folder.
    bool startFolderIsURLText = false;
    /// The title of the confirming button; nothing: the platform's.
    std::optional<std::string> prompt;
    /// What is to be chosen, in a sentence.
    std::string message;

    bool operator==(const OpenPanelRequest&) const = default;
};

/// How a file chooser was closed: the chosen paths when it was confirmed, in the chooser's order.
struct OpenPanelAnswer {
    bool confirmed = false;
    std::vector<std::string> paths;
};

/// How a save panel is set up. The confirmed name bears the extension.
struct SavePanelRequest {
    /// The name that is proposed, extension included.
    std::string name;
    /// Without dot.
    std::string fileType;
    /// What the file will hold, in a sentence.
    std::string message;
    /// What the button says that confirms.
    std::string prompt;
    /// Where the panel starts, an absolute path.
    std::string startFolder;

    bool operator==(const SavePanelRequest&) const = default;
};

/// The platform's alerts and file choosers. Implementations: AppKit panels, in memory.
class Panels {
public:
    virtual ~Panels() = default;
    /// Blocks until the alert is closed, and gives the number of its button.
    virtual long runAlert(const AlertRequest& request) = 0;
    /// Shows a file chooser and returns at once; `completion` runs later on the main thread, once.
    virtual void choose(
        const OpenPanelRequest& request, std::function<void(const OpenPanelAnswer&)> completion) = 0;
    /// Asks for a place for a file, which may be that of a file that the user agrees to replace, and returns
    /// at once; `completion` runs later on the main thread, once: with nothing when it was cancelled.
    virtual void choosePlace(const SavePanelRequest& request,
        std::function<void(const std::optional<std::string>&)> completion) = 0;
};

} // namespace tarnwick
