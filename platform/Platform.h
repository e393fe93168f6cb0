#pragma once

namespace tarnwick {

class Alerts;
class ApplicationBundle;
class DistributedNotifications;
class FileManager;
class FinderSync;
class Images;
class KnownFolders;
class LaunchServices;
class LoginItems;
class OpenPanel;
class PreferenceStores;
class ProcessControl;
class PropertyLists;
class RunLoop;
class RunningApplications;
class ShellTask;
class SystemLog;
class SystemVersion;
class UserScripts;
class Workspace;

/// Every port of the system in one hand, for the places that wire operations together. An operation itself
/// takes only the ports it uses. What is referred to outlives whoever holds this.
struct Platform {
    PreferenceStores& preferences;
    FileManager& files;
    KnownFolders& folders;
    ApplicationBundle& bundle;
    Images& images;
    OpenPanel& openPanel;
    Alerts& alerts;
    Workspace& workspace;
    RunningApplications& runningApplications;
    LaunchServices& launchServices;
    LoginItems& loginItems;
    FinderSync& finderSync;
    UserScripts& userScripts;
    DistributedNotifications& notifications;
    RunLoop& runLoop;
    SystemVersion& systemVersion;
    SystemLog& log;
    ShellTask& shell;
    PropertyLists& propertyLists;
    ProcessControl& process;
};

} // namespace tarnwick
