// Missing: the system's light or dark appearance, as of GNUstep GUI 0.29. It is asked for and announced as on
// macOS: by AppleInterfaceStyle in the system-wide settings, which is there when the appearance is dark, and
// by a distributed notification when it has changed.

#import "TNTheme.h"

#import "TNApplication.h"
#import "TNStartUp.h"

namespace {

NSString *const styleKey = @"AppleInterfaceStyle";
NSString *const changed = @"AppleInterfaceThemeChangedNotification";

TNThemeAppearance chosenAppearance() {
    NSString *style = [[NSUserDefaults standardUserDefaults] stringForKey:styleKey];
    return style ? TNThemeAppearance::dark : TNThemeAppearance::light;
}

void redisplay(NSView *view) {
    [view setNeedsDisplay:YES];
    for (NSView *inner in [view subviews]) {
        redisplay(inner);
    }
}

} // namespace

@implementation NSView (TNAppearance)

- (NSAppearance *)effectiveAppearance {
    // Made without a reference to give away: they stay.
    static NSAppearance *const light = [NSAppearance appearanceNamed:NSAppearanceNameAqua];
    static NSAppearance *const dark = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
    return chosenAppearance() == TNThemeAppearance::dark ? dark : light;
}

@end

@interface TNApplication (TNAppearance)
@end

@implementation TNApplication (TNAppearance)

/// Ahead of the delegate, which is told of this notification too, and by then sees the new setting.
- (void)finishLaunching {
    [[NSDistributedNotificationCenter defaultCenter] addObserver:self
                                                        selector:@selector(tnAppearanceChanged:)
                                                            name:changed
                                                          object:nil];
    [super finishLaunching];
}

- (void)tnAppearanceChanged:(NSNotification *)notification {
    // What another program has written is seen only after this.
    [[NSUserDefaults standardUserDefaults] synchronize];
    TNInstallTheme();
    for (NSWindow *window in [self windows]) {
        redisplay([[window contentView] superview]);
    }
}

@end

void TNInstallTheme() {
    TNThemeUseAppearance(chosenAppearance());
    // A new one each time: GNUstep asks for the colours when a theme takes the place of another.
    TNTheme *theme = [[[TNTheme alloc] initWithBundle:[NSBundle bundleForClass:[GSTheme class]]] autorelease];
    [GSTheme setTheme:theme];
    // Each window would draw itself anew a moment later, also one that has just come up in these colours.
    [[NSNotificationQueue defaultQueue]
        dequeueNotificationsMatching:[NSNotification notificationWithName:NSColorListDidChangeNotification
                                                                   object:nil]
                        coalesceMask:NSNotificationCoalescingOnName];
    TNThemeInstallImages();
}
