#import "front/SettingsViewController+System.h"

#import "adapters/foundation/StringConversion.h"
#import "adapters/foundation/UserScriptObjects.h"
#import "front/LinkButton.h"

#include "integration/Links.h"

@implementation SettingsViewController (System)

- (BOOL)isExtensionEnabled {
    return _controller->integration().finderExtension.isExtensionEnabled();
}

- (void)promptToEnableExtension {
    _controller->integration().finderExtension.promptToEnableExtension();
}

- (void)openSystemPreferences {
    _controller->integration().finderExtension.openSystemPreferences();
}

- (void)restartFinderClick:(id)sender {
    _controller->integration().restartRequest.send();
}

- (void)restartFinder {
    _controller->integration().scriptHelper.restartFinder();
}

- (void)initializeClick:(id)sender {
    _controller->integration().tools.openLink(tarnwick::link::helpRestartFinder);
}

- (void)helpServicesOfSystemPreferences:(id)sender {
    _controller->integration().tools.openLink(tarnwick::link::helpServices);
}

/// Deliberately nothing: a harmless action target.
- (void)openServiceOfSystemPreferences:(id)sender {
}

- (void)openLink:(LinkButton *)sender {
    _controller->integration().tools.openLink([sender address]);
}

- (BOOL)checkScriptInstalled {
    return _controller->integration().scriptHelper.checkScriptInstalled();
}

- (void)doInstallScript {
    _controller->integration().scriptHelper.doInstallScript();
}

- (id)repairScriptTask {
    const auto task = _controller->integration().scriptHelper.repairScriptTask();
    return task ? tarnwick::objectOf(*task) : nil;
}

- (id)restartFinderEventDescriptor:(NSString *)handlerName {
    return tarnwick::objectOf(tarnwick::restartFinderEventDescriptor(tarnwick::toString(handlerName)));
}

- (void)openServicesOfSystemPreferences {
    _controller->integration().scriptHelper.openServicesOfSystemPreferences();
}

- (void)initialize {
    _controller->integration().scriptHelper.initialize();
}

- (NSString *)runCommand:(NSString *)command {
    const auto output = _controller->integration().tools.runCommand(tarnwick::toString(command));
    return output ? tarnwick::toNSString(*output) : nil;
}

- (BOOL)_appWithBundleIdentifierInstalled:(NSString *)bundleIdentifier {
    return _controller->integration().tools.isInstalled(tarnwick::toString(bundleIdentifier));
}

- (void)getSystemShortcuts:(id)sender {
    _controller->integration().tools.chooseSystemShortcuts();
}

@end
