// Missing: the help menu of an application, as of GNUstep GUI 0.29, which does nothing of its own with one.

#import "TNAdditions.h"

namespace {

NSMenu *helpMenu = nil;

} // namespace

@implementation NSApplication (TNHelpMenu)

- (void)setHelpMenu:(NSMenu *)menu {
    [helpMenu autorelease];
    helpMenu = [menu retain];
}

- (NSMenu *)helpMenu {
    return helpMenu;
}

@end
