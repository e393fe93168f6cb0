#pragma once

#import <AppKit/AppKit.h>

#include <memory>

@class ActivationObserver;
@class AppDelegate;
@class SettingsViewController;

namespace tarnwick {

/// The running application's objects: the ports over this platform, the controller, the window, the delegate
/// and the menu. Making it loads the window, as loading an interface file would; the application then only
/// has to run. The application object must exist.
class MainInterface {
public:
    MainInterface();
    ~MainInterface();
    MainInterface(const MainInterface &) = delete;
    MainInterface &operator=(const MainInterface &) = delete;

    [[nodiscard]] SettingsViewController *controller() const { return controller_; }
    [[nodiscard]] NSWindow *window() const { return window_; }

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
    SettingsViewController *controller_ = nil;
    NSWindow *window_ = nil;
    AppDelegate *delegate_ = nil;
    ActivationObserver *activation_ = nil;
};

} // namespace tarnwick
