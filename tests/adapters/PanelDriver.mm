#include "tests/adapters/PanelDriver.h"

#import "adapters/foundation/DeferredWork.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/SystemAdapters.h"

#import <AppKit/AppKit.h>

namespace tarnwick::testing {
namespace {

NSButton *buttonTitled(NSView *view, NSString *title) {
    if ([view isKindOfClass:[NSButton class]] && [[(NSButton *)view title] isEqualToString:title]) {
        return (NSButton *)view;
    }
    for (NSView *inner in [view subviews]) {
        if (NSButton *found = buttonTitled(inner, title)) {
            return found;
        }
    }
    return nil;
}

/// Once, in the loop of the next alert or panel.
void whenUp(std::function<void()> work) {
    NSTimer *timer = [NSTimer timerWithTimeInterval:0.05
                                             target:[TNDeferredWork deferredWork:std::move(work)]
                                           selector:@selector(run:)
                                           userInfo:nil
                                            repeats:NO];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
}

void inNextPanel(void (*work)(NSSavePanel *panel)) {
    whenUp([work] { work((NSSavePanel *)[NSApp modalWindow]); });
}

} // namespace

void becomeApplication() {
    prepareProcess(0, nullptr);
    [NSApplication sharedApplication];
}

void pressInNextAlert(const std::string &title) {
    whenUp(
        [title] { [buttonTitled([[NSApp modalWindow] contentView], toNSString(title)) performClick:nil]; });
}

void chooseOnlyFileInNextPanel() {
    inNextPanel([](NSSavePanel *panel) {
        NSBrowser *browser = (NSBrowser *)[[panel contentView] viewWithTag:NSFileHandlingPanelBrowser];
        [browser selectRow:0 inColumn:[browser lastColumn]];
        [browser sendAction];
        [panel ok:nil];
    });
}

void confirmNextPanel() {
    inNextPanel([](NSSavePanel *panel) { [panel ok:nil]; });
}

void cancelNextPanel() {
    inNextPanel([](NSSavePanel *panel) { [panel cancel:nil]; });
}

} // namespace tarnwick::testing
