// The floor of an edit: a window with one check box that switches the second copy target on or off with what
// no program can do without, a write and a synchronisation of each preference domain. Both forms of both
// values are made beforehand.

#import "bench/app/ClickService.h"
#import "gnustep/include/TNStartUp.h"

#include <array>

namespace {

constexpr NSUInteger row = 1;
NSString *const listKey = @"arrOfCopyFilesTo";
NSString *const suiteName = @"H7Q2ZK5RX9.org.halvane.Tarnwick";

struct Values {
    NSArray *list;
    NSArray *published;
};

Values valuesWithRow(bool on) {
    NSMutableArray *list = [[[NSUserDefaults standardUserDefaults] arrayForKey:listKey] mutableCopy];
    NSMutableDictionary *record = [[[list objectAtIndex:row] mutableCopy] autorelease];
    [record setObject:[NSNumber numberWithInt:on ? 1 : 0] forKey:@"enable"];
    [list replaceObjectAtIndex:row withObject:record];
    NSMutableArray *published = [[NSMutableArray alloc] init];
    for (NSDictionary *each in list) {
        if ([[each objectForKey:@"enable"] boolValue]) {
            [published addObject:each];
        }
    }
    return {list, published};
}

} // namespace

@interface FloorController : NSObject {
@private
    std::array<Values, 2> _values;
}
- (void)switched:(NSButton *)sender;
@end

@implementation FloorController

- (id)init {
    self = [super init];
    if (self) {
        _values = {valuesWithRow(false), valuesWithRow(true)};
    }
    return self;
}

- (void)switched:(NSButton *)sender {
    const Values &values = _values[[sender state] == NSControlStateValueOn ? 1 : 0];
    NSUserDefaults *local = [NSUserDefaults standardUserDefaults];
    @autoreleasepool {
        [local setObject:values.list forKey:listKey];
    }
    [local synchronize];
    NSUserDefaults *shared = [[NSUserDefaults alloc] initWithSuiteName:suiteName];
    @autoreleasepool {
        [shared setObject:values.published forKey:listKey];
    }
    [shared synchronize];
    [shared release];
}

@end

int main() {
    @autoreleasepool {
        TNPrepareProcess({.identifier = @"org.halvane.Tarnwick"});
        [NSApplication sharedApplication];
        NSWindow *window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 300, 200)
                                                       styleMask:NSWindowStyleMaskTitled
                                                         backing:NSBackingStoreBuffered
                                                           defer:NO];
        FloorController *controller = [[FloorController alloc] init];
        NSButton *checkBox = [[NSButton alloc] initWithFrame:NSMakeRect(20, 20, 20, 20)];
        [checkBox setButtonType:NSSwitchButton];
        [checkBox setTitle:@""];
        [checkBox setState:NSControlStateValueOn];
        [checkBox setTarget:controller];
        [checkBox setAction:@selector(switched:)];
        [[window contentView] addSubview:checkBox];
        [window makeKeyAndOrderFront:nil];
        tarnwick::bench::whenRunning([window] { return window; },
            [checkBox] { tarnwick::bench::serveClicks([checkBox] { return checkBox; }); });
        [NSApp run];
    }
}
