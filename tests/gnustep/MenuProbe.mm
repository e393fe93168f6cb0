#include "MenuProbe.h"

#include "Probe.h"

#import "TNAdditions.h"
#import "gnustep/menus/KeyLabels.h"
#import "tests/driving/Driving.h"

@interface TNMenuWitness : NSObject {
@public
    std::vector<std::string> events;
}
- (void)choose:(NSMenuItem *)item;
@end

@implementation TNMenuWitness

- (void)choose:(NSMenuItem *)item {
    events.push_back("chosen " + std::string([[item title] UTF8String]));
}

- (void)menuWillOpen:(NSMenu *)menu {
    events.emplace_back("will open");
}

- (void)menuDidClose:(NSMenu *)menu {
    events.emplace_back("did close");
}

- (BOOL)validateMenuItem:(NSMenuItem *)item {
    return ![[item title] isEqualToString:@"One"];
}

@end

/// Leaves one item in its menu, for Command and the upward arrow.
@interface TNFillingWitness : TNMenuWitness
@end

@implementation TNFillingWitness

- (void)menuNeedsUpdate:(NSMenu *)menu {
    while ([menu numberOfItems] > 1) {
        [menu removeItemAtIndex:0];
    }
    const unichar key = NSUpArrowFunctionKey;
    [[menu itemAtIndex:0] setKeyEquivalent:[NSString stringWithCharacters:&key length:1]];
}

@end

namespace tarnwick::probe {

namespace {

NSUInteger maskOf(const Keys &keys) {
    return NSCommandKeyMask | (keys.shift ? NSShiftKeyMask : 0U) | (keys.option ? NSAlternateKeyMask : 0U) |
           (keys.control ? NSControlKeyMask : 0U);
}

NSMenuItem *makeItem(NSString *title, id target, NSString *key = @"") {
    NSMenuItem *item = [[[NSMenuItem alloc] initWithTitle:title action:@selector(choose:)
                                            keyEquivalent:key] autorelease];
    [item setTarget:target];
    return item;
}

NSMenuItem *itemWith(const Keys &keys, id target) {
    NSMenuItem *item = makeItem(@"Item", target, [NSString stringWithUTF8String:keys.character.c_str()]);
    [item setKeyEquivalentModifierMask:maskOf(keys)];
    return item;
}

/// While the menu is closed.
void press(NSMenu *menu, NSString *characters, NSUInteger mask) {
    [menu performKeyEquivalent:[NSEvent keyEventWithType:NSKeyDown
                                                      location:NSZeroPoint
                                                 modifierFlags:mask
                                                     timestamp:0
                                                  windowNumber:0
                                                       context:nil
                                                    characters:characters
                                   charactersIgnoringModifiers:characters
                                                     isARepeat:NO
                                                       keyCode:0]];
}

NSMenu *makeMenu(TNMenuWitness *witness) {
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"Menu"] autorelease];
    [menu addItem:makeItem(@"One", witness)];
    [menu addItem:[NSMenuItem separatorItem]];
    [menu addItem:makeItem(@"Two", witness)];
    NSMenu *submenu = [[[NSMenu alloc] initWithTitle:@"Three"] autorelease];
    [submenu addItem:makeItem(@"Four", witness)];
    [submenu addItem:makeItem(@"Five", witness)];
    NSMenuItem *three = makeItem(@"Three", witness);
    [three setSubmenu:submenu];
    [menu addItem:three];
    [menu setDelegate:(id)witness];
    return menu;
}

NSWindow *makeActiveWindow(NSString *title) {
    [NSApp finishLaunching];
    constexpr NSUInteger style = NSWindowStyleMaskTitled | NSWindowStyleMaskClosable;
    NSWindow *window = [[[NSWindow alloc] initWithContentRect:NSMakeRect(100, 300, 200, 100)
                                                    styleMask:style
                                                      backing:NSBackingStoreBuffered
                                                        defer:NO] autorelease];
    [window setReleasedWhenClosed:NO];
    [window setTitle:title];
    [window makeKeyAndOrderFront:nil];
    [NSApp activateIgnoringOtherApps:YES];
    driving::waitUntil([window] { return [window isKeyWindow] && [NSApp isActive]; });
    return window;
}

std::vector<std::string> itemsOf(NSMenu *menu) {
    [menu update];
    std::vector<std::string> items;
    for (NSMenuItem *item in [menu itemArray]) {
        const std::string mark = [item state] == NSControlStateValueOn ? "marked " : "";
        const std::string picture = [item image] ? "pictured " : "";
        items.push_back([item isSeparatorItem] ? "-" : mark + picture + [[item title] UTF8String]);
    }
    return items;
}

} // namespace

std::string keyLabel(const Keys &keys) {
    @autoreleasepool {
        return [TNKeyLabel(itemWith(keys, nil)) UTF8String];
    }
}

std::string labelOfArrowUp() {
    @autoreleasepool {
        const unichar key = NSUpArrowFunctionKey;
        NSMenuItem *item = makeItem(@"Item", nil, [NSString stringWithCharacters:&key length:1]);
        return [TNKeyLabel(item) UTF8String];
    }
}

bool isChosenWhenPutThere() {
    @autoreleasepool {
        startUp();
        TNFillingWitness *witness = [[[TNFillingWitness alloc] init] autorelease];
        NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"Filled"] autorelease];
        for (NSString *title in [NSArray arrayWithObjects:@"One", @"Two", @"Three", nil]) {
            [menu addItem:makeItem(title, witness)];
        }
        [menu setDelegate:(id)witness];
        const unichar up = NSUpArrowFunctionKey;
        press(menu, [NSString stringWithCharacters:&up length:1], NSCommandKeyMask);
        return witness->events == std::vector<std::string>{"chosen Three"};
    }
}

bool isChosenBy(const Keys &item, const Keys &pressed) {
    @autoreleasepool {
        startUp();
        TNMenuWitness *witness = [[[TNMenuWitness alloc] init] autorelease];
        NSMenu *inner = [[[NSMenu alloc] initWithTitle:@"Inner"] autorelease];
        [inner addItem:itemWith(item, witness)];
        NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"Outer"] autorelease];
        NSMenuItem *holder = makeItem(@"Inner", witness);
        [holder setSubmenu:inner];
        [menu addItem:holder];
        press(menu, [NSString stringWithUTF8String:pressed.character.c_str()], maskOf(pressed));
        return witness->events.size() == 1;
    }
}

std::vector<std::string> popUpAndType(const std::u16string &characters) {
    @autoreleasepool {
        startUp();
        NSWindow *window = makeActiveWindow(@"");
        for (const char16_t character : characters) {
            const auto unit = static_cast<unichar>(character);
            driving::postKey(window, [NSString stringWithCharacters:&unit length:1]);
        }
        TNMenuWitness *witness = [[[TNMenuWitness alloc] init] autorelease];
        const BOOL answer = [makeMenu(witness) popUpMenuPositioningItem:nil
                                                             atLocation:NSMakePoint(0, 0)
                                                                 inView:[window contentView]];
        witness->events.emplace_back(answer ? "answer yes" : "answer no");
        return witness->events;
    }
}

WindowsMenu windowsMenuOfTwo() {
    @autoreleasepool {
        startUp();
        NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"Window"] autorelease];
        [menu addItem:makeItem(@"Own", nil)];
        [NSApp setWindowsMenu:menu];
        NSWindow *first = makeActiveWindow(@"First");
        NSWindow *second = makeActiveWindow(@"Second");
        WindowsMenu seen;
        seen.open = itemsOf(menu);
        [first close];
        [second close];
        seen.closed = itemsOf(menu);
        return seen;
    }
}

} // namespace tarnwick::probe
