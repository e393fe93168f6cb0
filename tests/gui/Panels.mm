#include "tests/gui/Panels.h"

#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "gnustep/panels/PanelLanguages.h"
#import "tests/driving/Driving.h"

#include <algorithm>
#include <utility>

namespace {

namespace driving = tarnwick::driving;

std::string alertText;
double alertMargin = 0;

NSTextField *firstLabel(NSView *view) {
    return static_cast<NSTextField *>(tarnwick::gui::firstView(view, [](NSView *each) {
        return [each isKindOfClass:[NSTextField class]] &&
               [[static_cast<NSTextField *>(each) stringValue] length] > 0;
    }));
}

/// The least room between what the panel shows and its edges.
double marginOf(NSView *content) {
    double margin = NSWidth([content bounds]);
    for (NSView *view in [content subviews]) {
        if (![view isHidden] && [view isKindOfClass:[NSControl class]]) {
            const NSRect frame = [view frame];
            const NSRect whole = [content bounds];
            margin = std::min({margin, NSMinX(frame), NSMinY(frame), NSMaxX(whole) - NSMaxX(frame),
                NSMaxY(whole) - NSMaxY(frame)});
        }
    }
    return margin;
}

bool eventsAreWaiting() {
    return [NSApp nextEventMatchingMask:NSAnyEventMask
                              untilDate:nil
                                 inMode:NSModalPanelRunLoopMode
                                dequeue:NO] != nil;
}

} // namespace

/// Looks for a panel again and again, also while one blocks everything else, until it has been answered.
@interface PanelAnswer : NSObject {
@private
    NSWindow *_panel;
    int _looks;
    BOOL _isLooking;
}
- (void)begin;
/// Whether this is none of the panels that it looks for.
- (BOOL)passesOver:(NSWindow *)panel;
/// With a panel up and every event handled: takes the next step. NO once there is none left.
- (BOOL)goOnIn:(NSWindow *)panel;
@end

@implementation PanelAnswer

- (void)begin {
    NSTimer *timer = [NSTimer timerWithTimeInterval:0.02
                                             target:self
                                           selector:@selector(look:)
                                           userInfo:nil
                                            repeats:YES];
    for (NSString *mode in [NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, nil]) {
        [[NSRunLoop currentRunLoop] addTimer:timer forMode:mode];
    }
}

- (void)look:(NSTimer *)timer {
    // The timer fires also while this looks for events and posts some.
    if (!_isLooking) {
        _isLooking = YES;
        if (![self lookAtPanel:[NSApp modalWindow]]) {
            [timer invalidate];
        }
        _isLooking = NO;
    }
}

- (BOOL)lookAtPanel:(NSWindow *)panel {
    constexpr int patience = 500;
    if ([self passesOver:panel]) {
        return YES;
    }
    if (_panel && panel != _panel) {
        return NO;
    }
    _panel = panel;
    if (++_looks == patience) {
        NSLog(@"The panel \"%@\" was not answered", [panel title]);
        if (panel) {
            [NSApp abortModal];
        }
        return NO;
    }
    return !panel || eventsAreWaiting() || [self goOnIn:panel];
}

- (BOOL)passesOver:(NSWindow *)panel {
    return NO;
}

- (BOOL)goOnIn:(NSWindow *)panel {
    return NO;
}

@end

/// Of an alert alone, where it is told so.
@interface AlertAnswer : PanelAnswer {
@public
    BOOL wantsAlert;
}
@end

@implementation AlertAnswer

- (BOOL)passesOver:(NSWindow *)panel {
    return wantsAlert && (!panel || [panel isKindOfClass:[NSSavePanel class]]);
}

@end

@interface ButtonAnswer : AlertAnswer {
@public
    NSString *title;
}
@end

@implementation ButtonAnswer

- (void)dealloc {
    [title release];
    [super dealloc];
}

- (BOOL)goOnIn:(NSWindow *)panel {
    NSButton *button = tarnwick::gui::visibleButton([panel contentView], title);
    if (!button) {
        return YES;
    }
    alertText = tarnwick::toString([firstLabel([panel contentView]) stringValue]);
    alertMargin = marginOf([panel contentView]);
    [button performClick:self];
    return NO;
}

@end

/// Chooses in an open panel: types a folder and then the name of what is in it.
@interface PathAnswer : PanelAnswer {
@public
    NSArray *texts;
@private
    NSUInteger _typed;
    /// What the panel must show before the next step.
    NSString *_shown;
}
@end

@implementation PathAnswer

- (void)dealloc {
    [texts release];
    [super dealloc];
}

- (BOOL)goOnIn:(NSWindow *)panel {
    NSText *field = (NSText *)[panel firstResponder];
    const bool isEditing = [field isKindOfClass:[NSText class]];
    if (!isEditing || (_shown && ![[field string] isEqualToString:_shown])) {
        return YES;
    }
    if (_typed < [texts count]) {
        _shown = [texts objectAtIndex:_typed++];
        [field selectAll:self];
        for (NSUInteger index = 0; index < [_shown length]; ++index) {
            driving::postKey(panel, [_shown substringWithRange:NSMakeRange(index, 1)]);
        }
    } else {
        // For a folder, the first Return goes into it and the second takes it.
        driving::postKey(panel, @"\r");
        _shown = nil;
    }
    return YES;
}

@end

/// Looks, and closes the panel without an answer.
@interface LookAnswer : AlertAnswer {
@public
    std::function<void()> look;
}
@end

@implementation LookAnswer

- (BOOL)goOnIn:(NSWindow *)panel {
    look();
    if (wantsAlert) {
        // A made-up language has no word that the toolkit knows as the answer for Escape.
        [NSApp abortModal];
    } else {
        driving::postKey(panel, @"\x1B");
    }
    return NO;
}

@end

namespace tarnwick::gui {

namespace {

void lookIntoNext(BOOL wantsAlert, std::function<void()> look) {
    LookAnswer *answer = [[[LookAnswer alloc] init] autorelease];
    answer->look = std::move(look);
    answer->wantsAlert = wantsAlert;
    [answer begin];
}

} // namespace

void pressInNextPanel(const std::string &buttonTitle) {
    ButtonAnswer *answer = [[[ButtonAnswer alloc] init] autorelease];
    answer->title = [toNSString(buttonTitle) copy];
    [answer begin];
}

void pressInNextAlert(const std::string &buttonTitle) {
    ButtonAnswer *answer = [[[ButtonAnswer alloc] init] autorelease];
    answer->title = [toNSString(buttonTitle) copy];
    answer->wantsAlert = YES;
    [answer begin];
}

std::string lastAlertText() {
    return alertText;
}

double lastAlertMargin() {
    return alertMargin;
}

std::vector<std::string> textsOfAboutPanel() {
    [NSApp sendAction:@selector(orderFrontStandardAboutPanel:) to:nil from:NSApp];
    driving::settle();
    NSWindow *panel = [NSApp keyWindow];
    std::vector<std::string> texts;
    for (NSView *view in [[panel contentView] subviews]) {
        if ([view isKindOfClass:[NSTextField class]]) {
            texts.push_back(toString([static_cast<NSTextField *>(view) stringValue]));
        }
    }
    driving::postKey(panel, @"\x1B");
    driving::waitUntil([panel] { return ![panel isVisible]; });
    return [panel isVisible] ? std::vector<std::string>{"it stays open"} : texts;
}

std::string panelText(const std::string &text) {
    @autoreleasepool {
        return toString(TNPanelText(toNSString(text)));
    }
}

void chooseInNextPanel(const std::string &path) {
    PathAnswer *answer = [[[PathAnswer alloc] init] autorelease];
    NSString *whole = toNSString(path);
    answer->texts = [[NSArray alloc]
        initWithObjects:[whole stringByDeletingLastPathComponent], [whole lastPathComponent], nil];
    [answer begin];
}

void saveInNextPanel(const std::string &path) {
    PathAnswer *answer = [[[PathAnswer alloc] init] autorelease];
    answer->texts = [[NSArray alloc] initWithObjects:toNSString(path), nil];
    [answer begin];
}

void cancelNextPanel() {
    lookIntoNext(NO, [] {});
}

void lookIntoNextPanel(std::function<void()> look) {
    lookIntoNext(NO, std::move(look));
}

void lookIntoNextAlert(std::function<void()> look) {
    lookIntoNext(YES, std::move(look));
}

} // namespace tarnwick::gui
