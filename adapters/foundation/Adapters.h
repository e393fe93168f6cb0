#pragma once

#include <memory>

namespace tarnwick {

class ApplicationBundle;
class FileContents;
class FileManager;
class Images;
class KnownFolders;
class Panels;
class PreferenceStores;
class Process;
class SystemLog;
class Workspace;

/// The ports over Foundation and AppKit, one source for both platforms.

[[nodiscard]] std::unique_ptr<PreferenceStores> makePreferenceStores();
[[nodiscard]] std::unique_ptr<FileManager> makeFileManager();
[[nodiscard]] std::unique_ptr<FileContents> makeFileContents();
[[nodiscard]] std::unique_ptr<KnownFolders> makeKnownFolders();
[[nodiscard]] std::unique_ptr<ApplicationBundle> makeApplicationBundle();
[[nodiscard]] std::unique_ptr<Images> makeImages();
[[nodiscard]] std::unique_ptr<Panels> makePanels();
[[nodiscard]] std::unique_ptr<Workspace> makeWorkspace();
[[nodiscard]] std::unique_ptr<SystemLog> makeSystemLog();
[[nodiscard]] std::unique_ptr<Process> makeProcess();

} // namespace tarnwick
