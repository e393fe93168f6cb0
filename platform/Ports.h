#pragma once

namespace tarnwick {

class ApplicationBundle;
class DistributedNotifications;
class FileContents;
class FileManager;
class Images;
class KnownFolders;
class Panels;
class PreferenceStores;
class Process;
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
    FileContents& contents;
    KnownFolders& folders;
    ApplicationBundle& bundle;
    Images& images;
    Panels& panels;
    Workspace& workspace;
    UserScripts& userScripts;
    DistributedNotifications& notifications;
    RunLoop& runLoop;
    SystemLog& log;
    Process& process;
    UndoHistory& undoHistory;
};

} // namespace tarnwick
