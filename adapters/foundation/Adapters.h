#pragma once

#include <functional>
#include <memory>
#include <string_view>

namespace tarnwick {

class Alerts;
class ApplicationBundle;
class FileManager;
class Images;
class KnownFolders;
class OpenPanel;
class PreferenceStores;
class ProcessControl;
class PropertyLists;
class RunningApplications;
class ShellTask;
class SystemLog;
class Workspace;

/// The ports over Foundation and AppKit, one source for both platforms.

/// `observe` registers the window's controller for a key of the standard domain.
[[nodiscard]] std::unique_ptr<PreferenceStores> makePreferenceStores(
    std::function<void(std::string_view)> observe);
[[nodiscard]] std::unique_ptr<FileManager> makeFileManager();
[[nodiscard]] std::unique_ptr<KnownFolders> makeKnownFolders();
[[nodiscard]] std::unique_ptr<ApplicationBundle> makeApplicationBundle();
[[nodiscard]] std::unique_ptr<Images> makeImages();
[[nodiscard]] std::unique_ptr<OpenPanel> makeOpenPanel();
[[nodiscard]] std::unique_ptr<Alerts> makeAlerts();
/// `observe` registers the window's controller for application activations and deactivations.
[[nodiscard]] std::unique_ptr<Workspace> makeWorkspace(std::function<void()> observe);
[[nodiscard]] std::unique_ptr<RunningApplications> makeRunningApplications();
[[nodiscard]] std::unique_ptr<SystemLog> makeSystemLog();
[[nodiscard]] std::unique_ptr<ShellTask> makeShellTask();
[[nodiscard]] std::unique_ptr<PropertyLists> makePropertyLists();
[[nodiscard]] std::unique_ptr<ProcessControl> makeProcessControl();

} // namespace tarnwick
