#import "TNAdditions.h"
#import "TNConstants.h"
#import "TNStartUp.h"

#import <AppKit/AppKit.h>

#include <cstdio>

/// A window for the test of menus: its upper half has a context menu, and each button at its foot pops one
/// up. What is chosen is written to the standard output.
@interface MenuTarget : NSObject
- (void)choose:(NSMenuItem *)item;
- (void)popUpAtCorner:(NSButton *)sender;
- (void)popUpOverItem:(NSButton *)sender;
- (void)popUpLong:(NSButton *)sender;
@end

namespace {

void say(const char *what, NSString *text) {
    std::printf("%s %s\n", what, [text UTF8String]);
    std::fflush(stdout);
}

NSMenuItem *add(NSMenu *menu, NSString *title, id target) {
    NSMenuItem *item = [[[NSMenuItem alloc] initWithTitle:title action:@selector(choose:)
                                            keyEquivalent:@""] autorelease];
    [item setTarget:target];
    [menu addItem:item];
    return item;
}

NSMenu *makeMenu(id target) {
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"Context"] autorelease];
    [add(menu, @"First", target) setToolTip:@"What the first one does"];
    [add(menu, @"Disabled", nil) setAction:nullptr];
    [menu addItem:[NSMenuItem separatorItem]];
    [add(menu, @"Second", target) setState:NSControlStateValueMixed];
    NSMenu *submenu = [[[NSMenu alloc] initWithTitle:@"More"] autorelease];
    for (NSString *title in [NSArray arrayWithObjects:@"Inner One", @"Inner Two", @"Inner Three", nil]) {
        add(submenu, title, target);
    }
    [add(menu, @"More", target) setSubmenu:submenu];
    [add(menu, @"Last", target) setState:NSControlStateValueOn];
    return menu;
}

NSMenu *makeLongMenu(id target) {
    constexpr int items = 10'000;
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"Long"] autorelease];
    for (int item = 0; item < items; ++item) {
        add(menu, [NSString stringWithFormat:@"Item %d", item], target);
    }
    return menu;
}

} // namespace

@implementation MenuTarget

- (void)choose:(NSMenuItem *)item {
    say("chosen", [item title]);
}

- (void)popUp:(NSMenu *)menu item:(NSMenuItem *)item from:(NSButton *)sender {
    const BOOL wasChosen = [menu popUpMenuPositioningItem:item atLocation:NSZeroPoint inView:sender];
    say("answer", wasChosen ? @"yes" : @"no");
}

- (void)popUpAtCorner:(NSButton *)sender {
    [self popUp:makeMenu(self) item:nil from:sender];
}

- (void)popUpOverItem:(NSButton *)sender {
    NSMenu *menu = makeMenu(self);
    [self popUp:menu item:static_cast<NSMenuItem *>([menu itemWithTitle:@"Last"]) from:sender];
}

- (void)popUpLong:(NSButton *)sender {
    [self popUp:makeLongMenu(self) item:nil from:sender];
}

@end

@interface MenuSurface : NSView
@end

@implementation MenuSurface

- (BOOL)acceptsFirstResponder {
    return YES;
}

- (void)mouseDown:(NSEvent *)event {
    say("pressed", @"the surface");
}

- (void)keyDown:(NSEvent *)event {
    say("key", @"for the surface");
}

@end

int main() {
    @autoreleasepool {
        TNPrepareProcess({.identifier = @"org.halvane.MenuWindow", .endsAtExceptions = true});
        MenuTarget *target = [[MenuTarget alloc] init];
        NSWindow *window = [[NSWindow alloc] initWithContentRect:NSMakeRect(300, 300, 400, 300)
                                                       styleMask:NSWindowStyleMaskTitled
                                                         backing:NSBackingStoreBuffered
                                                           defer:YES];
        [window setTitle:@"Menus"];
        NSView *content = [window contentView];
        MenuSurface *surface = [[[MenuSurface alloc] initWithFrame:NSMakeRect(0, 100, 400, 200)] autorelease];
        [surface setMenu:makeMenu(target)];
        [content addSubview:surface];
        const SEL actions[] = { @selector(popUpAtCorner:), @selector(popUpOverItem:), @selector(popUpLong:) };
        CGFloat left = 10;
        for (const SEL action : actions) {
            NSButton *button = [[[NSButton alloc] initWithFrame:NSMakeRect(left, 20, 120, 30)] autorelease];
            [button setTitle:@"Menu"];
            [button setTarget:target];
            [button setAction:action];
            [content addSubview:button];
            left += 130;
        }
        [window makeKeyAndOrderFront:nil];
        [window makeFirstResponder:surface];
        [NSApp run];
    }
}
