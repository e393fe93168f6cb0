#include "tests/gui/Dropping.h"

#include "tests/gui/SettingsWindow.h"
#include "tests/gui/Shown.h"

#import "adapters/foundation/StringConversion.h"
#import "tests/driving/Driving.h"

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

namespace {

using tarnwick::driving::mouseEvent;
using tarnwick::driving::postMouse;
using tarnwick::gui::DropSpot;
using tarnwick::gui::firstView;
using tarnwick::gui::pageView;
using tarnwick::gui::settingsWindow;

/// Rounds of the drag's loop without an event before what they led to is looked at.
constexpr int quietRounds = 5;

NSView *viewOfClass(NSString *name) {
    return firstView(
        pageView(), [name](NSView *view) { return [view isKindOfClass:NSClassFromString(name)]; });
}

bool isHighlighted() {
    return viewOfClass(@"DropMarkView") != nil;
}

NSPoint placeOf(DropSpot spot) {
    const NSRect frame = [pageView() convertRect:[pageView() bounds] toView:nil];
    NSView *table = viewOfClass(@"RuleTableView");
    const NSRect visible = [table convertRect:[table visibleRect] toView:nil];
    switch (spot) {
    case DropSpot::table:
        return NSMakePoint(NSMidX(visible), NSMidY(visible));
    case DropSpot::heading:
        return NSMakePoint(NSMidX(frame), NSMaxY(frame) - 12);
    case DropSpot::switches:
        break;
    }
    NSView *box = viewOfClass(@"PreferenceSwitch");
    const NSRect boxFrame = [box convertRect:[box bounds] toView:nil];
    return NSMakePoint(NSMidX(boxFrame), NSMidY(boxFrame));
}

/// A drag follows the pointer itself, not the events alone.
void moveMouse(NSPoint place) {
    const NSPoint onScreen = [settingsWindow() convertBaseToScreen:place];
    [GSCurrentServer() setMouseLocation:onScreen onScreen:0];
    postMouse(settingsWindow(), NSLeftMouseDragged, place);
}

const NSPoint outside = NSMakePoint(20, 120);

} // namespace

/// The other program: what it drags may be copied or linked to. While its drag runs it looks at the window
/// and then goes on.
@interface FileDragSource : NSObject {
@private
    NSTimer *_timer;
    NSPoint _spot;
    BOOL _returns;
    int _quietRounds;
    BOOL _isBack;
    tarnwick::gui::DropResult _result;
}
@end

@implementation FileDragSource

- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal {
    return NSDragOperationCopy | NSDragOperationLink | NSDragOperationGeneric;
}

- (tarnwick::gui::DropResult)dragToSpot:(NSPoint)spot
                           andReturning:(BOOL)returns
                             pasteboard:(NSPasteboard *)pasteboard {
    _spot = spot;
    _returns = returns;
    NSImage *image = [[NSWorkspace sharedWorkspace] iconForFile:NSHomeDirectory()];
    _timer = [NSTimer timerWithTimeInterval:0.01
                                     target:self
                                   selector:@selector(goOn:)
                                   userInfo:nil
                                    repeats:YES];
    [[NSRunLoop currentRunLoop] addTimer:_timer forMode:NSEventTrackingRunLoopMode];
    moveMouse(spot);
    [[settingsWindow() contentView] dragImage:image
                                           at:outside
                                       offset:NSZeroSize
                                        event:mouseEvent(settingsWindow(), NSLeftMouseDown, outside)
                                   pasteboard:pasteboard
                                       source:self
                                    slideBack:NO];
    [_timer invalidate];
    tarnwick::driving::settle();
    if (!returns) {
        _result.isHighlighted = isHighlighted();
    }
    return _result;
}

- (void)goOn:(NSTimer *)timer {
    NSEvent *waiting = [NSApp nextEventMatchingMask:NSAnyEventMask
                                          untilDate:nil
                                             inMode:NSEventTrackingRunLoopMode
                                            dequeue:NO];
    _quietRounds = waiting ? 0 : _quietRounds + 1;
    if (_quietRounds < quietRounds) {
        return;
    }
    _quietRounds = 0;
    if (_returns && !_isBack) {
        _result.wasHighlighted = isHighlighted();
        _isBack = YES;
        moveMouse(outside);
        return;
    }
    if (_returns) {
        _result.isHighlighted = isHighlighted();
    } else {
        _result.wasHighlighted = isHighlighted();
    }
    if (_result.wasHighlighted && !_returns) {
        tarnwick::gui::takePicture("drop-on-page-" + std::to_string(tarnwick::gui::shownPage() + 1));
    }
    postMouse(settingsWindow(), NSLeftMouseUp, _returns ? outside : _spot);
}

@end

namespace {

tarnwick::gui::DropResult dragFiles(const std::vector<std::string> &paths, DropSpot spot, BOOL returns) {
    NSMutableArray *names = [NSMutableArray array];
    NSMutableString *text = [NSMutableString string];
    for (const auto &path : paths) {
        [names addObject:tarnwick::toNSString(path)];
        [text appendFormat:@"%@\n", tarnwick::toNSString(path)];
    }
    // Some file managers add the names as text, the kind that the tables take rows in.
    NSPasteboard *pasteboard = [NSPasteboard pasteboardWithName:NSDragPboard];
    [pasteboard declareTypes:[NSArray arrayWithObjects:NSFilenamesPboardType, NSStringPboardType, nil]
                       owner:nil];
    [pasteboard setPropertyList:names forType:NSFilenamesPboardType];
    [pasteboard setString:text forType:NSStringPboardType];
    FileDragSource *source = [[[FileDragSource alloc] init] autorelease];
    return [source dragToSpot:placeOf(spot) andReturning:returns pasteboard:pasteboard];
}

} // namespace

namespace tarnwick::gui {

DropResult dropFiles(const std::vector<std::string> &paths, DropSpot spot) {
    return dragFiles(paths, spot, NO);
}

DropResult dragFilesOverAndAway(const std::vector<std::string> &paths, DropSpot spot) {
    return dragFiles(paths, spot, YES);
}

} // namespace tarnwick::gui
