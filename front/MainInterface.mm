#import "front/MainInterface.h"

#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/UndoHistoryAdapter.h"
#import "front/ActivationObserver.h"
#import "front/AppDelegate.h"
#import "front/LayerWindow.h"
#import "front/MainMenu.h"
#import "front/SettingsViewController.h"
#import "front/SettingsWindowBuilder.h"
#import "front/WindowUndo.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/SystemAdapters.h"
#include "app/ApplicationDelegate.h"
#include "platform/ApplicationBundle.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileContents.h"
#include "platform/FileManager.h"
#include "platform/Images.h"
#include "platform/KnownFolders.h"
#include "platform/Panels.h"
#include "platform/Ports.h"
#include "platform/PreferenceStore.h"
#include "platform/Process.h"
#include "platform/RunLoop.h"
#include "platform/SystemLog.h"
#include "platform/UserScript.h"

namespace tarnwick {
namespace {

/// The delegate's own callbacks have nothing to do with what is being edited.
void observeEnds(SettingsViewController *controller, NSWindow *window) {
    NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
    [center addObserver:controller
               selector:@selector(endEditing:)
                   name:NSWindowWillCloseNotification
                 object:window];
    [center addObserver:controller
               selector:@selector(endEditing:)
                   name:NSApplicationWillTerminateNotification
                 object:nil];
    [center addObserver:controller
               selector:@selector(removeHeldFiles:)
                   name:NSApplicationWillTerminateNotification
                 object:nil];
}

struct Adapters {
    std::unique_ptr<PreferenceStores> preferences = makePreferenceStores();
    std::unique_ptr<FileManager> files = makeFileManager();
    std::unique_ptr<FileContents> contents = makeFileContents();
    std::unique_ptr<KnownFolders> folders = makeKnownFolders();
    std::unique_ptr<ApplicationBundle> bundle = makeApplicationBundle();
    std::unique_ptr<Images> images = makeImages();
    std::unique_ptr<Panels> panels = makePanels();
    std::unique_ptr<Workspace> workspace = makeWorkspace();
    std::unique_ptr<UserScripts> userScripts = makeUserScripts();
    std::unique_ptr<DistributedNotifications> notifications = makeDistributedNotifications();
    std::unique_ptr<RunLoop> runLoop = makeRunLoop();
    std::unique_ptr<SystemLog> log = makeSystemLog();
    std::unique_ptr<Process> process = makeProcess();
    ObjectPointer<WindowUndo> windowUndo = ObjectPointer<WindowUndo>::adopting([[WindowUndo alloc] init]);
    std::unique_ptr<UndoHistory> undoHistory = makeUndoHistory([windowUndo.get() steps]);

    [[nodiscard]] Ports ports() const {
        return {*preferences, *files, *contents, *folders, *bundle, *images, *panels, *workspace,
            *userScripts, *notifications, *runLoop, *log, *process, *undoHistory};
    }
};

/// The delegate of a window.
struct WindowDelegate {
    WindowDelegate(const Ports &ports, NSWindow *settings) : window(settings), delegate(ports, window) {}

    LayerWindow window;
    ApplicationDelegate delegate;
};

} // namespace

struct MainInterface::Parts {
    Adapters adapters;
    std::unique_ptr<WindowDelegate> window;
};

MainInterface::MainInterface() : parts_(std::make_unique<Parts>()) {
    const auto ports = parts_->adapters.ports();
    controller_ = [[SettingsViewController alloc] initWithPorts:ports];
    window_ = newSettingsWindow(controller_);
    parts_->window = std::make_unique<WindowDelegate>(ports, window_);
    delegate_ = [[AppDelegate alloc] initWithDelegate:parts_->window->delegate window:window_];
    installMainMenu(controller_);
    [NSApp setDelegate:delegate_];
    [window_ setDelegate:parts_->adapters.windowUndo.get()];
    observeEnds(controller_, window_);
    [controller_ awakeFromNib];
    SettingsViewController *controller = controller_;
    activation_ =
        [[ActivationObserver alloc] initWithHandler:[controller] { [controller applicationActivated]; }];
    // The tables were built before there were lists to show.
    for (const auto category : allRuleCategories) {
        [[controller_ tableOf:category] reloadData];
    }
}

MainInterface::~MainInterface() {
    [NSApp setDelegate:nil];
    [window_ setDelegate:nil];
    [[NSNotificationCenter defaultCenter] removeObserver:controller_];
    [activation_ release];
    [delegate_ release];
    [window_ release];
    [controller_ release];
}

} // namespace tarnwick
