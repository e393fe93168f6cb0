#pragma once

namespace tarnwick {

class ApplicationBundle;
class Clock;
class DistributedNotifications;
class FileManager;
class FileTrees;
class FileStatus;
class FinderSync;
class Images;
class KnownFolders;
class Panels;
class PreferenceStores;
class Process;
class PropertyListFiles;
class RunLoop;
class SystemLog;
class UndoHistory;
class UserScripts;
class Workspace;

/// Every port of the system in one hand, for whoever wires the program together. Nothing else sees it: an
/// operation takes the ports that it uses. What is referred to outlives the program's objects.
struct Ports {
    PreferenceStores& preferences;
    FileManager& files;
    FileTrees& trees;
    PropertyListFiles& listFiles;
    FileStatus& fileStatus;
    KnownFolders& folders;
    ApplicationBundle& bundle;
    Images& images;
    Panels& panels;
    Workspace& workspace;
    FinderSync& finderSync;
    UserScripts& userScripts;
    DistributedNotifications& notifications;
    RunLoop& runLoop;
    SystemLog& log;
    Process& process;
    Clock& clock;
    UndoHistory& undoHistory;
};

} // namespace tarnwick
