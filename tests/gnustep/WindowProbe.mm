#include "WindowProbe.h"

#include "Probe.h"

#import "tests/driving/Driving.h"

#import <QuartzCore/QuartzCore.h>

using tarnwick::probe::WindowResult;

namespace {

NSArray *allModes() {
    return [NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, nil];
}

double brightness(NSColor *color) {
    NSColor *known = [color colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
    return ([known redComponent] + [known greenComponent] + [known blueComponent]) / 3;
}

BOOL pressButton(NSView *view, NSString *title) {
    if ([view isKindOfClass:[NSButton class]] && [[(NSButton *)view title] isEqualToString:title]) {
        [(NSButton *)view performClick:nil];
        return YES;
    }
    for (NSView *inner in [view subviews]) {
        if (pressButton(inner, title)) {
            return YES;
        }
    }
    return NO;
}

} // namespace

@interface TNCountingController : NSViewController {
@public
    int calls;
}
@end

@implementation TNCountingController

- (void)loadView {
    [self setView:[[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 400, 200)] autorelease]];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    ++calls;
}

@end

/// The script that the run application follows, a step at a time.
@interface TNWindowScript : NSObject {
@public
    WindowResult result;
    int clicksWanted;
    int clicksPosted;
    int patience;
    NSWindow *window;
    NSButton *button;
    NSView *layered;
    NSTextField *field;
    TNCountingController *controller;
}
@end

@implementation TNWindowScript

- (void)next:(SEL)step {
    [self performSelector:step withObject:nil afterDelay:0.02 inModes:allModes()];
}

- (void)build {
    window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, 400, 200)
                                         styleMask:NSWindowStyleMaskTitled
                                           backing:NSBackingStoreBuffered
                                             defer:YES];
    button = [[NSButton alloc] initWithFrame:NSMakeRect(10, 10, 100, 28)];
    [button setTarget:self];
    [button setAction:@selector(clicked:)];
    NSButton *standard = [[[NSButton alloc] initWithFrame:NSMakeRect(150, 10, 100, 28)] autorelease];
    [standard setKeyEquivalent:@"\r"];
    [standard setTarget:self];
    [standard setAction:@selector(standardPressed:)];
    layered = [[NSView alloc] initWithFrame:NSMakeRect(10, 60, 60, 60)];
    [layered setWantsLayer:YES];
    [[layered layer] setBackgroundColor:[[NSColor blackColor] CGColor]];
    [[layered layer] setCornerRadius:20];
    field = [[NSTextField alloc] initWithFrame:NSMakeRect(150, 60, 100, 24)];
    [field setIdentifier:@"name"];
    controller = [[TNCountingController alloc] initWithNibName:nil bundle:nil];
    NSView *content = [controller view];
    [content setWantsLayer:YES];
    [[content layer] setBackgroundColor:[[NSColor whiteColor] CGColor]];
    for (NSView *view in [NSArray arrayWithObjects:button, standard, layered, field, nil]) {
        [content addSubview:view];
    }
    [window setContentView:content];
    TNCountingController *other = [[[TNCountingController alloc] initWithNibName:nil bundle:nil] autorelease];
    [other setView:[[[NSView alloc] initWithFrame:NSZeroRect] autorelease]];
    result.viewDidLoadCallsForAGivenView = other->calls;
}

- (void)applicationDidFinishLaunching:(NSNotification *)notification {
    (void)notification;
    [window makeKeyAndOrderFront:nil];
    [self next:@selector(waitForKey)];
}

- (void)waitForKey {
    if (([window isKeyWindow] && [NSApp isActive]) || ++patience > 250) {
        [self next:@selector(postClick)];
    } else {
        [self next:@selector(waitForKey)];
    }
}

- (void)postClick {
    tarnwick::driving::postClicks(window, NSMakePoint(60, 24));
    ++clicksPosted;
    [self next:clicksPosted < clicksWanted ? @selector(postClick) : @selector(readPixels)];
}

- (void)clicked:(id)sender {
    (void)sender;
    ++result.clicksHandled;
}

- (void)readPixels {
    [window display];
    [layered lockFocus];
    NSBitmapImageRep *image =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[layered bounds]] autorelease];
    [layered unlockFocus];
    result.layerMiddle = brightness([image colorAtX:30 y:30]);
    result.layerCorner = brightness([image colorAtX:1 y:1]);
    [self beginPanel];
}

- (void)beginPanel {
    NSOpenPanel *panel = [NSOpenPanel openPanel];
    [panel setCanChooseDirectories:YES];
    [panel setCanChooseFiles:NO];
    [panel setDirectoryURL:[NSURL fileURLWithPath:@"/usr" isDirectory:YES]];
    [panel beginWithCompletionHandler:^(NSInteger answer) {
        ++result.panelAnswers;
        result.panelAnswer = answer;
        result.panelFolder = [[[[panel URLs] objectAtIndex:0] path] UTF8String];
        [self next:@selector(edit)];
    }];
    result.panelBeganAtOnce = result.panelAnswer == -1;
    [self performSelector:@selector(answerPanel)
               withObject:nil
               afterDelay:0.1
                  inModes:[NSArray arrayWithObject:NSModalPanelRunLoopMode]];
}

- (void)answerPanel {
    pressButton([[NSApp modalWindow] contentView], @"OK");
}

- (void)edit {
    [window makeKeyAndOrderFront:nil];
    [window makeFirstResponder:field];
    for (NSString *key in [NSArray arrayWithObjects:@"x", @"\r", nil]) {
        tarnwick::driving::postKey(window, key);
    }
    patience = 0;
    [self next:@selector(finish)];
}

- (void)standardPressed:(id)sender {
    (void)sender;
    ++result.defaultButtonPresses;
}

- (void)finish {
    if ([[field stringValue] length] == 0 && ++patience < 250) {
        [self next:@selector(finish)];
        return;
    }
    result.textAfterReturn = [[field stringValue] UTF8String];
    result.identifier = [[field identifier] UTF8String];
    result.viewDidLoadCalls = controller->calls;
    [NSApp stop:nil];
    [NSApp postEvent:[NSEvent otherEventWithType:NSEventTypeApplicationDefined
                                        location:NSZeroPoint
                                   modifierFlags:0
                                       timestamp:0
                                    windowNumber:0
                                         context:nil
                                         subtype:0
                                           data1:0
                                           data2:0]
             atStart:NO];
}

@end

namespace tarnwick::probe {

WindowResult runWindow(int clicks) {
    @autoreleasepool {
        startUp();
        TNWindowScript *script = [[TNWindowScript alloc] init];
        script->clicksWanted = clicks;
        [script build];
        [NSApp setDelegate:(id)script];
        [NSApp run];
        return script->result;
    }
}

namespace {

NSWindow *makeWindow(double width, NSUInteger style) {
    return [[[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, width, 300)
                                        styleMask:style
                                          backing:NSBackingStoreBuffered
                                            defer:YES] autorelease];
}

} // namespace

std::pair<double, double> overhangOfTooWideWindow(double excess) {
    @autoreleasepool {
        startUp();
        NSScreen *screen = [NSScreen mainScreen];
        const NSRect room = [screen visibleFrame];
        NSWindow *window = makeWindow(400, NSWindowStyleMaskTitled | NSWindowStyleMaskResizable);
        [window setMinSize:NSMakeSize(NSWidth(room) + excess, 100)];
        const NSRect placed = [window constrainFrameRect:NSInsetRect(room, -excess, 20) toScreen:screen];
        return {NSMinX(room) - NSMinX(placed), NSMaxX(placed) - NSMaxX(room)};
    }
}

double widthOfWindow(double wanted) {
    @autoreleasepool {
        startUp();
        return NSWidth([makeWindow(wanted, NSWindowStyleMaskBorderless) frame]);
    }
}

} // namespace tarnwick::probe
