#import "front/AppDelegate.h"

#import "adapters/foundation/StringConversion.h"

#include "app/ApplicationDelegate.h"

@implementation AppDelegate

@synthesize window = _window;

- (instancetype)initWithDelegate:(tarnwick::ApplicationDelegate &)delegate window:(NSWindow *)window {
    self = [super init];
    if (self) {
        _window = window;
        _delegate = &delegate;
    }
    return self;
}

- (void)applicationWillFinishLaunching:(NSNotification *)notification {
    _delegate->applicationWillFinishLaunching();
}

- (void)applicationDidFinishLaunching:(NSNotification *)notification {
}

- (void)applicationWillTerminate:(NSNotification *)notification {
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication *)sender {
    return _delegate->applicationShouldTerminateAfterLastWindowClosed();
}

/// What macOS keeps of a window for the next start holds no objects of ours.
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication *)application {
    return YES;
}

- (BOOL)application:(NSApplication *)sender openFile:(NSString *)filename {
    return _delegate->openFile(tarnwick::described(filename));
}

- (void)handleInputSourceChange:(NSNotification *)notification {
    _delegate->handleInputSourceChange(tarnwick::described(notification));
}

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
    _delegate->observeValue(
        tarnwick::toString(keyPath), tarnwick::described([change objectForKey:NSKeyValueChangeNewKey]));
}

- (void)darkModeChanged:(NSNotification *)notification {
    _delegate->darkModeChanged();
}

@end
