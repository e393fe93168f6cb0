#include "AlertProbe.h"

#include "Probe.h"

#import "tests/driving/Driving.h"

namespace tarnwick::probe {

namespace {

NSButton *buttonOf(NSWindow *panel, NSString *title) {
    return (NSButton *)driving::firstView([panel contentView], [title](NSView *view) {
        return [view isKindOfClass:[NSButton class]] && [[(NSButton *)view title] isEqualToString:title];
    });
}

AlertLayout layoutOf(NSWindow *panel, NSString *message) {
    NSView *content = [panel contentView];
    auto *field = (NSTextField *)driving::firstView(content, [message](NSView *view) {
        return [view isKindOfClass:[NSTextField class]] &&
               [[(NSTextField *)view stringValue] isEqualToString:message];
    });
    NSView *icon = driving::firstView(content, [](NSView *view) {
        return [view isKindOfClass:[NSButton class]] && [(NSButton *)view imagePosition] == NSImageOnly;
    });
    NSScrollView *scroll = [field enclosingScrollView];
    const NSRect room = [field frame];
    const NSRect text =
        [[field attributedStringValue] boundingRectWithSize:NSMakeSize(NSWidth(room), 1e6)
                                                    options:static_cast<NSStringDrawingOptions>(0)];
    const NSRect seen = [field visibleRect];
    const NSRect document = scroll ? [[scroll contentView] bounds] : room;
    const NSRect shown = scroll ? [scroll frame] : room;
    AlertLayout layout;
    layout.fitsTheScreen = NSContainsRect([[NSScreen mainScreen] visibleFrame], [panel frame]);
    layout.isWhole = NSHeight(room) >= NSHeight(text) && NSWidth(document) >= NSWidth(room) &&
                     NSContainsRect([content bounds], shown);
    layout.scrolls = scroll && NSHeight(room) > NSHeight(document);
    layout.showsItsBeginning = !NSIsEmptyRect(seen) && [field isFlipped] && NSMinY(seen) <= 0;
    layout.iconIsAtTheLeft = NSMaxX([icon frame]) <= NSMinX(shown);
    layout.defaultButtonIsAtTheLeft =
        NSMinX([buttonOf(panel, @"Go") frame]) < NSMinX([buttonOf(panel, @"Stop") frame]);
    return layout;
}

} // namespace

AlertLayout layoutOfAlert(const std::string &message) {
    @autoreleasepool {
        startUp();
        [NSApplication sharedApplication];
        NSString *text = [NSString stringWithUTF8String:message.c_str()];
        NSAlert *alert = [[[NSAlert alloc] init] autorelease];
        [alert setMessageText:@"Title"];
        [alert setInformativeText:text];
        [alert addButtonWithTitle:@"Go"];
        [alert addButtonWithTitle:@"Stop"];
        __block AlertLayout layout;
        NSTimer *timer = [NSTimer timerWithTimeInterval:0.1
                                                 target:[NSBlockOperation blockOperationWithBlock:^{
                                                     layout = layoutOf([NSApp modalWindow], text);
                                                     [NSApp stopModal];
                                                 }]
                                               selector:@selector(main)
                                               userInfo:nil
                                                repeats:NO];
        [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
        [alert runModal];
        return layout;
    }
}

} // namespace tarnwick::probe
