// Wrong: the texts of open and save panels, as of GNUstep GUI 0.29, where the prompt stands before the name
// field instead of on the default button, and a message is shown nowhere. A panel that is asked for anew has
// none of the texts that it was given before, and is wide enough to read paths in.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/start/LayoutDirection.h"
#import "gnustep/views/ViewAttachments.h"

#include <algorithm>
#include <cmath>

@interface NSSavePanel (TNTexts)
- (void)tnResetTexts;
- (void)tnSetPrompt:(NSString *)prompt;
- (NSString *)tnPrompt;
/// The side of the title at which reading begins, which stays where it is when the title is another one.
- (CGFloat)tnTitleBegin;
- (void)tnBeginTitleAt:(CGFloat)leading;
/// Below the title; made when it is first asked for.
- (NSTextField *)tnMessageField;
@end

namespace {

NSString *const standardPromptName = @"standardPrompt";
constexpr CGFloat smallestPromptWidth = 71;
constexpr CGFloat promptPadding = 24;
constexpr CGFloat buttonGap = 8;
constexpr CGFloat smallestWidth = 600;
constexpr CGFloat smallestHeight = 440;

using Reset = void (*)(id self, SEL command);
using SetTitle = void (*)(id self, SEL command, NSString *title);
Reset nativeReset = nullptr;
SetTitle nativeSetTitle = nullptr;

void reset(id self, SEL command) {
    nativeReset(self, command);
    [self tnResetTexts];
    // Two narrow columns at first.
    const NSSize size = [[self contentView] frame].size;
    if (size.width < smallestWidth) {
        [self setContentSize:NSMakeSize(smallestWidth, std::max(size.height, smallestHeight))];
    }
}

/// As wide as it needs to be.
void setTitle(id self, SEL command, NSString *title) {
    const CGFloat leading = [self tnTitleBegin];
    nativeSetTitle(self, command, title);
    [self tnBeginTitleAt:leading];
}

void setPrompt(id self, SEL, NSString *prompt) {
    [self tnSetPrompt:prompt];
}

NSString *prompt(id self, SEL) {
    return [self tnPrompt];
}

void setMessage(id self, SEL, NSString *message) {
    NSTextField *field = [self tnMessageField];
    [field setStringValue:message ? message : @""];
    [field setToolTip:message];
}

NSString *message(id self, SEL) {
    return [[self tnMessageField] stringValue];
}

} // namespace

@implementation NSSavePanel (TNTexts)

+ (void)load {
    nativeReset = TNReplaceMethod(self, @selector(_resetDefaults), reset);
    nativeSetTitle = TNReplaceMethod(self, @selector(setTitle:), setTitle);
    TNReplaceMethod(self, @selector(setPrompt:), setPrompt);
    TNReplaceMethod(self, @selector(prompt), prompt);
    TNReplaceMethod(self, @selector(setMessage:), setMessage);
    TNReplaceMethod(self, @selector(message), message);
}

- (void)tnResetTexts {
    [self setPrompt:nil];
    [self setMessage:nil];
    [self setExtensionHidden:NO];
}

- (NSString *)tnPrompt {
    return [_okButton title];
}

/// Each button is as wide as its title needs; what stands before it makes room.
- (void)tnSetPrompt:(NSString *)prompt {
    if (!TNAttachment(_okButton, standardPromptName)) {
        TNSetAttachment(_okButton, standardPromptName, [_okButton title]);
    }
    [_okButton setTitle:[prompt length] > 0 ? prompt : TNAttachment(_okButton, standardPromptName)];
    // That of the Return key, which is blank here, and takes its room.
    [_okButton setImagePosition:NSNoImage];
    const NSRect room = [_bottomView bounds];
    CGFloat right = NSMaxX(TNPlaceByDirection([_okButton frame], room));
    for (const NSInteger tag :
        {NSFileHandlingPanelOKButton, NSFileHandlingPanelCancelButton, NSFileHandlingPanelHomeButton}) {
        NSButton *button = (NSButton *)[_bottomView viewWithTag:tag];
        NSRect frame = [button frame];
        if ([button imagePosition] != NSImageOnly) {
            const CGFloat wanted = [[[button cell] attributedTitle] size].width + promptPadding;
            frame.size.width = std::max(smallestPromptWidth, std::ceil(wanted));
        }
        frame.origin.x = right - NSWidth(frame);
        [button setFrame:TNPlaceByDirection(frame, room)];
        right = NSMinX(frame) - buttonGap;
    }
    // Drives are mounted by the system.
    for (const NSInteger tag : {NSFileHandlingPanelDiskEjectButton, NSFileHandlingPanelDiskButton}) {
        [[_bottomView viewWithTag:tag] setHidden:YES];
    }
    [_bottomView setNeedsDisplay:YES];
}

- (CGFloat)tnTitleBegin {
    return TNLeadingEdge([_titleField frame]);
}

- (void)tnBeginTitleAt:(CGFloat)leading {
    const NSRect frame = [_titleField frame];
    [_titleField setFrameOrigin:NSMakePoint(NSMinX(frame) + leading - TNLeadingEdge(frame), NSMinY(frame))];
}

- (NSTextField *)tnMessageField {
    NSString *const name = @"messageField";
    NSTextField *field = TNAttachment(_topView, name);
    if (!field) {
        constexpr CGFloat height = 18;
        constexpr CGFloat margin = 8;
        const CGFloat leading = [self tnTitleBegin];
        [_titleField setFont:[NSFont boldSystemFontOfSize:15]];
        [_titleField sizeToFit];
        [self tnBeginTitleAt:leading];
        // Both lines beside the icon.
        constexpr CGFloat titleTop = 11;
        const NSRect room = [_topView bounds];
        const CGFloat bottom = NSMaxY(room) - titleTop - NSHeight([_titleField frame]);
        [_titleField setFrameOrigin:NSMakePoint(NSMinX([_titleField frame]), bottom)];
        const CGFloat begin = NSMinX(TNPlaceByDirection([_titleField frame], room));
        const NSRect place = NSMakeRect(begin, bottom - height - 2, NSMaxX(room) - begin - margin, height);
        field = [[[NSTextField alloc] initWithFrame:TNPlaceByDirection(place, room)] autorelease];
        // Nobody finds it in place of the button with the tag 0.
        [field setTag:-1];
        [field setSelectable:NO];
        [field setDrawsBackground:NO];
        [field setBezeled:NO];
        [field setFont:[NSFont systemFontOfSize:12]];
        [field setAlignment:TNLeadingAlignment()];
        [[field cell] setLineBreakMode:NSLineBreakByTruncatingTail];
        [field setAutoresizingMask:NSViewMinYMargin | NSViewWidthSizable];
        [_topView addSubview:field];
        TNSetAttachment(_topView, name, field);
    }
    return field;
}

@end
