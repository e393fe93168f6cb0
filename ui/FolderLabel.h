#pragma once

#include <string>

namespace tarnwick {

class ApplicationBundle;
class KnownFolders;
class RuleRecord;

/// The name under which a folder rule is shown: its "displayName"; without one, the localised name of the
/// five well-known folders of the home and of "Undefined", else the last component of its path.
[[nodiscard]] std::string folderLabel(
    const KnownFolders& folders, const ApplicationBundle& bundle, const RuleRecord& record);

/// The path with every occurrence of the home folder, wherever in the text it stands, shortened to "~".
[[nodiscard]] std::string shortenedPath(const KnownFolders& folders, const RuleRecord& record);

} // namespace tarnwick
