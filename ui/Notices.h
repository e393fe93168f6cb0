#pragma once

#include <string>
#include <vector>

namespace tarnwick {

class ApplicationBundle;
class FinderExtension;
class PreferenceStores;
class Workspace;

/// What a notice is about. Each is said once.
enum class NoticeKind { extensionMissing, extensionOff, otherCopy, forcedLists };

/// What a notice offers to do about it.
enum class NoticeStep { none, turnOn, showInFinder };

/// A lasting state around the application that the user should know of.
struct Notice {
    NoticeKind kind = NoticeKind::extensionOff;
    std::string text;
    NoticeStep step = NoticeStep::none;
    /// What `showInFinder` shows.
    std::string path;
    bool operator==(const Notice&) const = default;
};

/// The title of the button for the step, as a key of the localisation table.
[[nodiscard]] const char* titleOf(NoticeStep step);

/// Finds out which notices there are. They are worded as what the system reports, whose answers are not
/// always right, and they never take the place of the prompt at the start.
class Notices {
public:
    Notices(const FinderExtension& extension, const ApplicationBundle& bundle, const Workspace& workspace,
        const PreferenceStores& stores)
        : extension_(extension), bundle_(bundle), workspace_(workspace), stores_(stores) {}

    /// Asks the system anew; without those that have been put away.
    [[nodiscard]] std::vector<Notice> current() const;
    /// Until the next start.
    void putAway(NoticeKind kind) { putAway_.push_back(kind); }

private:
    [[nodiscard]] std::vector<Notice> all() const;
    void addOtherCopies(std::vector<Notice>& notices) const;
    void addForcedLists(std::vector<Notice>& notices) const;

    const FinderExtension& extension_;
    const ApplicationBundle& bundle_;
    const Workspace& workspace_;
    const PreferenceStores& stores_;
    std::vector<NoticeKind> putAway_;
};

} // namespace tarnwick
