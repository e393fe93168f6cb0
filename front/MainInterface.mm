#import "front/MainInterface.h"

#import "adapters/foundation/StringConversion.h"
#import "front/AppDelegate.h"
#import "front/MainMenu.h"
#import "front/SettingsOutlets.h"
#import "front/SettingsViewController.h"
#import "front/SettingsWindowBuilder.h"

#include "adapters/foundation/Adapters.h"
#include "platform/Alerts.h"
#include "platform/ApplicationBundle.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileManager.h"
#include "platform/FinderSync.h"
#include "platform/Images.h"
#include "platform/KnownFolders.h"
#include "platform/LaunchServices.h"
#include "platform/LoginItems.h"
#include "platform/OpenPanel.h"
#include "platform/PreferenceStore.h"
#include "platform/ProcessControl.h"
#include "platform/PropertyLists.h"
#include "platform/RunLoop.h"
#include "platform/RunningApplications.h"
#include "platform/ShellTask.h"
#include "platform/SystemLog.h"
#include "platform/SystemServices.h"
#include "platform/SystemVersion.h"
#include "platform/UserScript.h"
#include "platform/Workspace.h"

namespace tarnwick {
namespace {

void observeKey(std::string_view key, ::SettingsViewController *controller) {
    [[NSUserDefaults standardUserDefaults] addObserver:controller
                                            forKeyPath:toNSString(key)
                                               options:NSKeyValueObservingOptionNew
                                               context:nullptr];
}

void observeApplications(::SettingsViewController *controller) {
    NSNotificationCenter *center = [[NSWorkspace sharedWorkspace] notificationCenter];
    [center addObserver:controller
               selector:@selector(appChanged:)
                   name:NSWorkspaceDidActivateApplicationNotification
                 object:nil];
    [center addObserver:controller
               selector:@selector(appChanged:)
                   name:NSWorkspaceDidDeactivateApplicationNotification
                 object:nil];
}

/// The delegate's own callbacks have nothing to do with what is being edited.
void observeEnds(::SettingsViewController *controller, NSWindow *window) {
    NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
    [center addObserver:controller
               selector:@selector(endEditing:)
                   name:NSWindowWillCloseNotification
                 object:window];
    [center addObserver:controller
               selector:@selector(endEditing:)
                   name:NSApplicationWillTerminateNotification
                 object:nil];
}

} // namespace

struct MainInterface::Ports {
    explicit Ports(const MainInterface &owner)
        : preferences(
              makePreferenceStores([&owner](std::string_view key) { observeKey(key, owner.controller_); })),
          workspace(makeWorkspace([&owner] { observeApplications(owner.controller_); })) {}

    std::unique_ptr<PreferenceStores> preferences;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<FileManager> files = makeFileManager();
    std::unique_ptr<KnownFolders> folders = makeKnownFolders();
    std::unique_ptr<ApplicationBundle> bundle = makeApplicationBundle();
    std::unique_ptr<Images> images = makeImages();
    std::unique_ptr<OpenPanel> openPanel = makeOpenPanel();
    std::unique_ptr<Alerts> alerts = makeAlerts();
    std::unique_ptr<RunningApplications> runningApplications = makeRunningApplications();
    std::unique_ptr<LaunchServices> launchServices = makeLaunchServices();
    std::unique_ptr<LoginItems> loginItems = makeLoginItems();
    std::unique_ptr<FinderSync> finderSync = makeFinderSync();
    std::unique_ptr<UserScripts> userScripts = makeUserScripts();
    std::unique_ptr<DistributedNotifications> notifications = makeDistributedNotifications();
    std::unique_ptr<RunLoop> runLoop = makeRunLoop();
    std::unique_ptr<SystemVersion> systemVersion = makeSystemVersion();
    std::unique_ptr<SystemLog> log = makeSystemLog();
    std::unique_ptr<ShellTask> shell = makeShellTask();
    std::unique_ptr<PropertyLists> propertyLists = makePropertyLists();
    std::unique_ptr<ProcessControl> process = makeProcessControl();

    [[nodiscard]] Platform platform() const {
        return {*preferences, *files, *folders, *bundle, *images, *openPanel, *alerts, *workspace,
            *runningApplications, *launchServices, *loginItems, *finderSync, *userScripts, *notifications,
            *runLoop, *systemVersion, *log, *shell, *propertyLists, *process};
    }
};

MainInterface::MainInterface() : ports_(std::make_unique<Ports>(*this)) {
    const auto platform = ports_->platform();
    controller_ = [[::SettingsViewController alloc] initWithPlatform:platform];
    window_ = newSettingsWindow(controller_);
    delegate_ = [[AppDelegate alloc] initWithPlatform:platform window:window_];
    installMainMenu(controller_);
    [NSApp setDelegate:delegate_];
    observeEnds(controller_, window_);
    [controller_ awakeFromNib];
    // The tables were built before there were lists to show.
    for (const auto category : allRuleCategories) {
        [[[controller_ outlets] tableOf:category] reloadData];
    }
}

MainInterface::~MainInterface() {
    [NSApp setDelegate:nil];
    [[NSNotificationCenter defaultCenter] removeObserver:controller_];
    [delegate_ release];
    [window_ release];
    [controller_ release];
}

} // namespace tarnwick
