// Missing: Return for a field that is being edited, reports of failing event handlers, and the prompt end of
// a modal session, as of GNUstep GUI 0.29.

#import "TNApplication.h"

#import "EventPump.h"
#import "Exceptions.h"

@implementation TNApplication

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

- (BOOL)isReturnForEditedField:(NSEvent *)event {
    NSWindow *window = [event window];
    if ([event type] != NSEventTypeKeyDown || [window isKindOfClass:[NSPanel class]]) {
        return NO;
    }
    id responder = [window firstResponder];
    if (![responder isKindOfClass:[NSText class]] || ![responder isFieldEditor]) {
        return NO;
    }
    NSString *characters = [event characters];
    return [characters length] == 1 && [characters characterAtIndex:0] == NSCarriageReturnCharacter;
}

/// A default button would take Return away from the field that is being edited.
- (void)sendEvent:(NSEvent *)event {
    if ([self isReturnForEditedField:event]) {
        [[[event window] firstResponder] keyDown:event];
        return;
    }
    [super sendEvent:event];
}

- (void)reportException:(NSException *)exception {
    TNReportException(exception);
}

@end
