#import "front/FaultLineView.h"

#import "front/WarningTextField.h"

namespace {

constexpr CGFloat lineHeight = 28;
constexpr CGFloat gapAbove = 8;
constexpr CGFloat gapBetween = 8;
constexpr CGFloat textHeight = 20;

} // namespace

@implementation FaultLineView

- (instancetype)initAtFootOf:(NSScrollView *)list buttons:(NSArray *)buttons {
    const NSRect room = [list frame];
    self = [super initWithFrame:NSMakeRect(NSMinX(room), NSMinY(room), NSWidth(room), lineHeight)];
    if (self) {
        _list = list;
        [self setAutoresizingMask:NSViewWidthSizable | NSViewMaxYMargin];
        CGFloat right = NSWidth(room);
        for (NSButton *button in buttons) {
            right -= NSWidth([button frame]);
            [button setFrameOrigin:NSMakePoint(right, 0)];
            [button setAutoresizingMask:NSViewMinXMargin];
            [self addSubview:button];
            right -= gapBetween;
        }
        _text = [[[WarningTextField alloc]
            initWithFrame:NSMakeRect(0, (lineHeight - textHeight) / 2, right, textHeight)] autorelease];
        [_text setBezeled:NO];
        [_text setDrawsBackground:NO];
        [_text setEditable:NO];
        [_text setSelectable:NO];
        [[_text cell] setLineBreakMode:NSLineBreakByTruncatingTail];
        [_text setAutoresizingMask:NSViewWidthSizable];
        [_text setWarns:YES];
        [self addSubview:_text];
        [self setHidden:YES];
    }
    return self;
}

- (BOOL)showText:(NSString *)text {
    [_text setStringValue:text];
    [_text setToolTip:text];
    const BOOL isHidden = [text length] == 0;
    if (isHidden == [self isHidden]) {
        return NO;
    }
    [self setHidden:isHidden];
    const CGFloat taken = isHidden ? -(lineHeight + gapAbove) : lineHeight + gapAbove;
    NSRect frame = [_list frame];
    frame.origin.y += taken;
    frame.size.height -= taken;
    [_list setFrame:frame];
    // What the list leaves, too.
    [[_list superview] setNeedsDisplay:YES];
    return YES;
}

@end
