#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tarnwick {

/// The application, and its own preference domain.
inline constexpr std::string_view applicationIdentifier = "org.halvane.Tarnwick";
/// The preference suite shared with the Finder extension; the application group has the same name.
inline constexpr std::string_view sharedSuiteName = "H7Q2ZK5RX9.org.halvane.Tarnwick";
inline constexpr std::string_view applicationGroup = sharedSuiteName;

namespace key {
/// Array of strings in `SharedPreferences`: the fixed features that are switched on.
inline constexpr std::string_view enabledFeatures = "arrOfEnableOther";
/// Boolean in `LocalPreferences`: the prompt to enable the extension has been shown.
inline constexpr std::string_view shownEnableExtensionAlert = "ShownEnableExtensionAlert";
/// Dictionary in `SharedPreferences`: the latest request to the extension.
inline constexpr std::string_view askAction = "askActionFromTarnwick";
/// Boolean: new files are not named automatically. The one switch that never gets a first value.
inline constexpr std::string_view disableAutoName = "disableAutoNameOfCreateNewFile";
inline constexpr std::string_view imageToIcon = "enableImagetoIcon";
/// Array of strings in `LocalPreferences`: what has yet to happen to template files; see `TemplateFiles`.
inline constexpr std::string_view pendingTemplateFiles = "pendingTemplateFiles";
} // namespace key

/// Switches that get their first value together: when `LocalPreferences` holds nothing under the first of
/// `keys`, all of them are written true, in order, each to `SharedPreferences` and then to
/// `LocalPreferences`. Only that first key is looked at.
struct SeedGroup {
    std::span<const std::string_view> keys;
    [[nodiscard]] constexpr std::string_view trigger() const { return keys.front(); }
};

namespace seed {
inline constexpr std::array<std::string_view, 2> sounds{"soundTipsOfNewFile", "soundTipsOfSendFilesTo"};
inline constexpr std::array<std::string_view, 2> targets{"enableCopyFilesTo", "enableMoveFilesTo"};
inline constexpr std::array<std::string_view, 1> commonPath{"enableCommonPath"};
inline constexpr std::array<std::string_view, 5> icons{"enableIconOfCreateNewFile", "enableIconOfSendFilesTo",
    "enableIconOfCommonPath", "enableIconOfCustomIcon", "enableIconOfOthers"};
inline constexpr std::array<std::string_view, 1> autoOpen{"enableAutoOpenAfterCreateNewFile"};
inline constexpr std::array<std::string_view, 1> terminalWindow{"newWindowOfOpenInTerminal"};
inline constexpr std::array<std::string_view, 1> iTermWindow{"newWindowOfOpenIniTerm2"};
inline constexpr std::array<std::string_view, 1> deleteConfirmation{"deleteDirectlyRequiresConfirmation"};
} // namespace seed

/// In the order in which they are looked at.
inline constexpr std::array<SeedGroup, 8> seedGroups{
    {{seed::sounds}, {seed::targets}, {seed::commonPath}, {seed::icons}, {seed::autoOpen},
        {seed::terminalWindow}, {seed::iTermWindow}, {seed::deleteConfirmation}}};

/// The fixed features in the order of the published array. Each is also a boolean of its own in
/// `LocalPreferences`. The third stands there twice, and the extension is given both.
inline constexpr std::array<std::string_view, 11> featureNames{"enableCopyPathToPaste",
    "enableDeleteSelectedFiles", "enableOpenPathInTerminal", "enableOpenPathInTerminal",
    "enableOpenPathIniTerm2", "enableImagetoIcon", "enableHiddenAllFilesInPath",
    "enableUnhiddenAllFilesInPath", "enableUnhiddenSelectedFiles", "enableHiddenSelectedFiles",
    "enableScreenshotsBySnapfin"};

/// The switches whose changes in `LocalPreferences` are copied into `SharedPreferences`, in the order in
/// which they are observed. The two "newWindowOf" switches are deliberately not among them.
inline constexpr std::array<std::string_view, 13> mirroredKeys{"soundTipsOfSendFilesTo", "soundTipsOfNewFile",
    "enableCopyFilesTo", "enableCommonPath", "enableMoveFilesTo", "enableIconOfCreateNewFile",
    key::disableAutoName, "enableAutoOpenAfterCreateNewFile", "enableIconOfSendFilesTo",
    "enableIconOfCommonPath", "enableIconOfCustomIcon", "enableIconOfOthers",
    "deleteDirectlyRequiresConfirmation"};

} // namespace tarnwick
