#import "front/SettingsViewController.h"

#import "adapters/foundation/StringConversion.h"

#include "ui/SettingsViewController.h"

@implementation SettingsViewController (Integration)

- (void)start {
    [self controller]->start();
}

- (void)appChanged:(NSNotification *)notification {
    [self controller]->appChanged();
}

- (BOOL)isExtensionEnabled {
    return [self controller]->isExtensionEnabled();
}

- (void)promptToEnableExtension {
    [self controller]->promptToEnableExtension();
}

- (void)openSystemPreferences {
    [self controller]->openSystemPreferences();
}

- (void)restartFinderClick:(id)sender {
    [self controller]->restartFinderClick();
}

- (void)restartFinder {
    [self controller]->restartFinder();
}

- (void)initializeClick:(id)sender {
    [self controller]->initializeClick();
}

- (void)helpServicesOfSystemPreferences:(id)sender {
    [self controller]->helpServicesOfSystemPreferences();
}

- (void)openServiceOfSystemPreferences:(id)sender {
    [self controller]->openServiceOfSystemPreferences();
}

- (BOOL)checkScriptInstalled {
    return [self controller]->checkScriptInstalled();
}

- (void)doInstallScript {
    [self controller]->doInstallScript();
}

- (void)openServicesOfSystemPreferences {
    [self controller]->openServicesOfSystemPreferences();
}

- (void)initialize {
    [self controller]->initialize();
}

- (NSString *)runCommand:(NSString *)command {
    const auto output = [self controller]->runCommand(tarnwick::toString(command));
    return output ? tarnwick::toNSString(*output) : nil;
}

- (BOOL)_appWithBundleIdentifierInstalled:(NSString *)bundleIdentifier {
    return [self controller]->appWithBundleIdentifierInstalled(tarnwick::toString(bundleIdentifier));
}

- (void)getSystemShortcuts:(id)sender {
    [self controller]->getSystemShortcuts();
}

@end
