#import "front/NoticeBar.h"

#import "adapters/foundation/StringConversion.h"
#import "front/Colors.h"
#import "front/ControlMaking.h"
#import "front/SettingsViewController+Actions.h"

#include <algorithm>

namespace {

constexpr CGFloat lineHeight = 40;
constexpr CGFloat margin = 24;
constexpr CGFloat gap = 8;
constexpr CGFloat buttonHeight = 28;
/// Two lines of small print.
constexpr CGFloat textHeight = 32;

} // namespace

@implementation NoticeButton

- (instancetype)initWithNotice:(const tarnwick::Notice &)notice
                         title:(NSString *)title
                        target:(id)target
                        action:(SEL)action {
    self = [super initWithFrame:NSZeroRect];
    if (self) {
        _notice = notice;
        tarnwick::preparePushButton(self, title, target, action);
    }
    return self;
}

- (const tarnwick::Notice &)notice {
    return _notice;
}

@end

@implementation NoticeBar

- (instancetype)initAbove:(NSView *)below controller:(id)controller {
    const NSRect frame = [below frame];
    self = [super initWithFrame:NSMakeRect(NSMinX(frame), NSMaxY(frame), NSWidth(frame), 0)];
    if (self) {
        _below = below;
        _controller = controller;
        [self setAutoresizingMask:NSViewWidthSizable | NSViewMinYMargin];
        [self setHidden:YES];
    }
    return self;
}

- (void)drawRect:(NSRect)rect {
    constexpr CGFloat ground = 0.06;
    constexpr CGFloat line = 0.15;
    tarnwick::fillWithShade([self bounds], ground);
    tarnwick::fillWithShade(NSMakeRect(0, 0, NSWidth([self bounds]), 1), line);
}

- (void)addLineFor:(const tarnwick::Notice &)notice bottom:(CGFloat)bottom {
    CGFloat right = NSWidth([self bounds]) - margin;
    const auto addButton = [&](NSString *title, SEL action) {
        NoticeButton *button = [[[NoticeButton alloc] initWithNotice:notice
                                                               title:title
                                                              target:_controller
                                                              action:action] autorelease];
        right -= NSWidth([button frame]);
        [button setFrameOrigin:NSMakePoint(right, bottom + (lineHeight - buttonHeight) / 2)];
        [button setAutoresizingMask:NSViewMinXMargin];
        [button setAccessibilityHelp:tarnwick::toNSString(notice.text)];
        [self addSubview:button];
        right -= gap;
        return button;
    };
    [addButton(tarnwick::localizedText("Put Away"), @selector(putNoticeAway:))
        setToolTip:tarnwick::localizedText("Hides this until Tarnwick is started again.")];
    if (notice.step != tarnwick::NoticeStep::none) {
        addButton(tarnwick::localizedText(tarnwick::titleOf(notice.step)), @selector(takeNoticeStep:));
    }
    NSString *text = tarnwick::toNSString(notice.text);
    NSTextField *label =
        tarnwick::makeLabel(text, [NSFont systemFontOfSize:12], [NSColor controlTextColor], true);
    [label setFrame:NSMakeRect(margin, bottom + (lineHeight - textHeight) / 2, right - margin, textHeight)];
    [label setAutoresizingMask:NSViewWidthSizable];
    [label setToolTip:text];
    [self addSubview:label];
}

- (BOOL)showNotices:(const std::vector<tarnwick::Notice> &)notices {
    if (notices == _notices) {
        return NO;
    }
    _notices = notices;
    for (NSView *view in [[[self subviews] copy] autorelease]) {
        // It may be the one that was pressed for this.
        [[view retain] autorelease];
        [view removeFromSuperview];
    }
    const NSRect below = [_below frame];
    const CGFloat top = NSMaxY(below) + NSHeight([self frame]);
    const CGFloat height = static_cast<CGFloat>(notices.size()) * lineHeight;
    [self setFrame:NSMakeRect(NSMinX(below), top - height, NSWidth(below), height)];
    [_below setFrame:NSMakeRect(NSMinX(below), NSMinY(below), NSWidth(below), top - height - NSMinY(below))];
    [self setHidden:notices.empty()];
    CGFloat bottom = height;
    for (const auto &notice : notices) {
        bottom -= lineHeight;
        [self addLineFor:notice bottom:bottom];
    }
    [[self superview] setNeedsDisplay:YES];
    return YES;
}

@end
