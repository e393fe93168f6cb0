// Missing: Return and Escape for a field that is being edited, context menus by the Control key, reports of
// failing event handlers, and of a modal session the prompt end, a window that stays in front of the one that
// waits for it, and what is drawn when a deferred call has begun it, as of GNUstep GUI 0.29.

#import "TNApplication.h"

#import "gnustep/events/CommandKeys.h"
#import "gnustep/events/EventPump.h"
#import "gnustep/events/Exceptions.h"
#import "gnustep/menus/MenuBarKeys.h"
#import "gnustep/windows/WindowActivation.h"

#import <GNUstepGUI/GSDisplayServer.h>

namespace {

/// A busy window manager may take the keyboard away for so long after a window has asked for it, in seconds.
constexpr NSTimeInterval unsettled = 2;

} // namespace

@implementation TNApplication

/// Brings it to the front, with the keyboard.
- (void)activateWindow:(NSWindow *)window {
    _keyboardAskedFor = [NSDate timeIntervalSinceReferenceDate];
    TNActivateWindow(window);
}

/// A busy window manager gives the keyboard to the window that asks for it, and right after that, because it
/// was minimising one, to nobody.
- (void)deactivate {
    [super deactivate];
    const NSTimeInterval passed = [NSDate timeIntervalSinceReferenceDate] - _keyboardAskedFor;
    if ([self modalWindow] && passed < unsettled && TNKeyboardIsNobodys()) {
        TNActivateWindow([self modalWindow]);
    }
}

/// What waits for a window: the one that is modal already, the main window, or that which will be.
- (NSWindow *)windowBehind:(NSWindow *)window {
    NSWindow *behind = [self modalWindow] ? [self modalWindow] : [self mainWindow];
    for (NSWindow *other in [self windows]) {
        if (!behind && other != window && [other isVisible] && [other canBecomeMainWindow]) {
            behind = other;
        }
    }
    return behind == window ? nil : behind;
}

/// A click on the window behind would bring that to the front, and the application would seem to hang. The
/// window manager knows the modal window only once that has come up.
- (NSModalSession)beginModalSessionForWindow:(NSWindow *)window {
    NSWindow *behind = [self windowBehind:window];
    const NSModalSession session = [super beginModalSessionForWindow:window];
    if (behind) {
        [GSServerForWindow(window) setParentWindow:static_cast<int>([behind windowNumber])
                                    forChildWindow:static_cast<int>([window windowNumber])];
        // It may be about to give the keyboard to the one behind, which came up a moment ago.
        [self activateWindow:window];
    }
    return session;
}

/// A session that is ended from a timer would wait for the next event to return.
- (void)stopModalWithCode:(NSInteger)code {
    [super stopModalWithCode:code];
    [self postEvent:[NSEvent otherEventWithType:NSEventTypeApplicationDefined
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

- (void)postEvent:(NSEvent *)event atStart:(BOOL)atStart {
    [super postEvent:event atStart:atStart];
    TNWakeRunLoop();
}

/// GNUstep draws by a deferred call too: behind the one that has begun the session it would wait for its end.
- (NSInteger)runModalSession:(NSModalSession)session {
    const NSInteger code = [super runModalSession:session];
    for (NSWindow *window in [self windows]) {
        if ([window isVisible] && [window viewsNeedDisplay]) {
            [window displayIfNeeded];
        }
    }
    return code;
}

/// The editor of the field that a key is meant for; nil without one, and in panels, whose buttons have Return
/// and Escape.
- (NSTextView *)fieldEditorFor:(NSEvent *)event {
    NSWindow *window = [event window];
    if ([event type] != NSEventTypeKeyDown || [window isKindOfClass:[NSPanel class]]) {
        return nil;
    }
    id responder = [window firstResponder];
    return [responder isKindOfClass:[NSTextView class]] && [responder isFieldEditor] ? responder : nil;
}

/// Shows the menu of what was pressed together with the Control key, as the right button does. NO without
/// one.
- (BOOL)showMenuFor:(NSEvent *)event {
    if ([event type] != NSLeftMouseDown || ([event modifierFlags] & NSControlKeyMask) == 0) {
        return NO;
    }
    NSView *root = [[[event window] contentView] superview];
    for (NSView *view = [root hitTest:[event locationInWindow]]; view; view = [view superview]) {
        if (NSMenu *menu = [view menuForEvent:event]) {
            [NSMenu popUpContextMenu:menu withEvent:event forView:view];
            return YES;
        }
    }
    return NO;
}

/// A window manager minimises a modal window and the one behind it together, and no click would bring them
/// back: they stay. NO for any other event.
- (BOOL)keepInSight:(NSEvent *)event {
    NSWindow *modal = [self modalWindow];
    if (!modal || [event type] != NSAppKitDefined || [event subtype] != GSAppKitWindowMiniaturize) {
        return NO;
    }
    [[event window] orderFrontRegardless];
    [self activateWindow:modal];
    return YES;
}

/// A default button would take Return away from the field that is being edited, and Escape asks GNUstep to
/// complete the text.
- (void)sendEvent:(NSEvent *)event {
    constexpr unichar escape = 0x1B;
    NSTextView *editor = [self fieldEditorFor:event];
    NSString *characters = editor ? [event characters] : nil;
    const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
    if (key == NSCarriageReturnCharacter) {
        [editor keyDown:event];
    } else if (key == escape) {
        [editor doCommandBySelector:@selector(cancelOperation:)];
    } else if (![self keepInSight:event] && !TNOpenMenuBarByKey(event) && ![self showMenuFor:event]) {
        [super sendEvent:TNWithLatinCommandKey(event)];
    }
}

/// Where nothing has a menu of its own GNUstep would open that of the menu bar.
- (void)rightMouseDown:(NSEvent *)event {
}

- (void)reportException:(NSException *)exception {
    TNReportException(exception);
}

@end
