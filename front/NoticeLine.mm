#import "front/NoticeLine.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"
#import "front/LayoutDirection.h"
#import "front/SettingsViewController+Actions.h"
#import "front/TextMeasuring.h"

#include <algorithm>

namespace {

constexpr CGFloat sideMargin = 24;
/// Above and below the higher one of text and buttons.
constexpr CGFloat margin = 6;
constexpr CGFloat gap = 8;
constexpr CGFloat pointSize = 12;

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
        [self setAccessibilityHelp:tarnwick::toNSString(notice.text)];
    }
    return self;
}

- (const tarnwick::Notice &)notice {
    return _notice;
}

@end

@implementation NoticeLine

- (instancetype)initWithNotice:(const tarnwick::Notice &)notice controller:(id)controller {
    self = [super initWithFrame:NSZeroRect];
    if (self) {
        _buttons = [[NSMutableArray alloc] init];
        const auto addButton = [&](NSString *title, SEL action) {
            NoticeButton *button = [[[NoticeButton alloc] initWithNotice:notice
                                                                   title:title
                                                                  target:controller
                                                                  action:action] autorelease];
            [self addSubview:button];
            [_buttons addObject:button];
            return button;
        };
        [addButton(tarnwick::localizedText("Put Away"), @selector(putNoticeAway:))
            setToolTip:tarnwick::localizedText("Hides this until Tarnwick starts again.")];
        if (notice.step != tarnwick::NoticeStep::none) {
            addButton(tarnwick::localizedText(tarnwick::titleOf(notice.step)), @selector(takeNoticeStep:));
        }
        NSString *text = tarnwick::toNSString(notice.text);
        _text =
            tarnwick::makeLabel(text, [NSFont systemFontOfSize:pointSize], [NSColor controlTextColor], true);
        [_text setToolTip:text];
        [self addSubview:_text];
    }
    return self;
}

- (void)dealloc {
    [_buttons release];
    [super dealloc];
}

- (void)layOutForWidth:(CGFloat)width {
    CGFloat textWidth = width - 2 * sideMargin;
    CGFloat buttonHeight = 0;
    for (NSView *button in _buttons) {
        textWidth -= NSWidth([button frame]) + gap;
        buttonHeight = std::max(buttonHeight, NSHeight([button frame]));
    }
    const CGFloat textHeight = tarnwick::heightOfLabel([_text stringValue], pointSize, textWidth);
    const CGFloat height = std::max(buttonHeight, textHeight) + 2 * margin;
    [self setFrameSize:NSMakeSize(width, height)];
    [_text setFrame:NSMakeRect(sideMargin, (height - textHeight) / 2, textWidth, textHeight)];
    CGFloat right = width - sideMargin;
    for (NSView *button in _buttons) {
        right -= NSWidth([button frame]);
        [button setFrameOrigin:NSMakePoint(right, (height - NSHeight([button frame])) / 2)];
        right -= gap;
    }
    tarnwick::mirrorIfRightToLeft(self);
}

@end
