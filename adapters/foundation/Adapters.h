#pragma once

#include <memory>

namespace tarnwick {

class ApplicationBundle;
class Clock;
class FileManager;
class FileTrees;
class FileStatus;
class Images;
class KnownFolders;
class Panels;
class PreferenceStores;
class Process;
class PropertyListFiles;
class SystemLog;
class Workspace;

/// The ports over Foundation and AppKit, one source for both platforms.

[[nodiscard]] std::unique_ptr<PreferenceStores> makePreferenceStores();
[[nodiscard]] std::unique_ptr<FileManager> makeFileManager();
[[nodiscard]] std::unique_ptr<FileTrees> makeFileTrees();
[[nodiscard]] std::unique_ptr<PropertyListFiles> makePropertyListFiles();
[[nodiscard]] std::unique_ptr<FileStatus> makeFileStatus();
[[nodiscard]] std::unique_ptr<KnownFolders> makeKnownFolders();
[[nodiscard]] std::unique_ptr<ApplicationBundle> makeApplicationBundle();
[[nodiscard]] std::unique_ptr<Images> makeImages();
[[nodiscard]] std::unique_ptr<Panels> makePanels();
[[nodiscard]] std::unique_ptr<Workspace> makeWorkspace();
[[nodiscard]] std::unique_ptr<SystemLog> makeSystemLog();
[[nodiscard]] std::unique_ptr<Process> makeProcess();
[[nodiscard]] std::unique_ptr<Clock> makeClock();

} // namespace tarnwick
