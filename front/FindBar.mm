#import "front/FindBar.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"
#import "front/LayoutDirection.h"
#import "front/RuleTableView.h"
#import "front/SettingsViewController+Finding.h"

#include "ui/CountText.h"

#include <initializer_list>

using tarnwick::localizedText;

namespace {

constexpr CGFloat barHeight = 28;
/// Between the bar and the table.
constexpr CGFloat room = 8;
constexpr CGFloat gap = 8;
constexpr CGFloat fieldHeight = 22;
constexpr CGFloat labelHeight = 18;
constexpr CGFloat countWidth = 150;
constexpr CGFloat arrowWidth = 32;

NSTextField *makeBarLabel(NSString *text, NSColor *color) {
    NSTextField *label = tarnwick::makeLabel(text, [NSFont systemFontOfSize:12], color);
    [label sizeToFit];
    return label;
}

/// The table's, after which what was found may be something else.
std::initializer_list<NSString *> followedNotifications() {
    static const std::initializer_list<NSString *> names{
        RuleTableViewDidReloadNotification, NSTableViewSelectionDidChangeNotification};
    return names;
}

} // namespace

@implementation FindBar

- (instancetype)initWithController:(SettingsViewController *)controller {
    constexpr CGFloat width = 600;
    self = [super initWithFrame:NSMakeRect(0, 0, width, barHeight)];
    if (self) {
        _controller = controller;
        const CGFloat left = [self placeLabel];
        CGFloat right = [self placeButton:[self makeDoneButton] leftOf:width] - gap;
        NSString *const leftwards = @"\u2039";
        NSString *const rightwards = @"\u203A";
        const bool isMirrored = tarnwick::isRightToLeft();
        _next = [self makeArrow:isMirrored ? leftwards : rightwards
                          label:localizedText("Find Next")
                         action:@selector(findNextRule:)];
        _previous = [self makeArrow:isMirrored ? rightwards : leftwards
                              label:localizedText("Find Previous")
                             action:@selector(findPreviousRule:)];
        right = [self placeButton:_next leftOf:right];
        right = [self placeButton:_previous leftOf:right - 2] - gap;
        right = [self placeCountLeftOf:right] - gap;
        [self placeFieldFrom:left to:right];
        [self setAutoresizingMask:NSViewWidthSizable | NSViewMinYMargin];
        tarnwick::mirrorIfRightToLeft(self);
    }
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [_field setDelegate:nil];
    [super dealloc];
}

#pragma mark Making

/// Gives the right edge.
- (CGFloat)placeLabel {
    NSTextField *label = makeBarLabel(localizedText("Find:"), [NSColor controlTextColor]);
    const CGFloat width = NSWidth([label frame]);
    [label setFrame:NSMakeRect(0, (barHeight - labelHeight) / 2, width, labelHeight)];
    [self addSubview:label];
    return width + gap;
}

- (NSButton *)makeDoneButton {
    return tarnwick::makePushButton(localizedText("Done"), _controller, @selector(closeFindBar:));
}

- (NSButton *)makeArrow:(NSString *)title label:(NSString *)label action:(SEL)action {
    constexpr CGFloat size = 18;
    NSButton *button = tarnwick::makePushButton(title, _controller, action);
    [button setFont:[NSFont systemFontOfSize:size]];
    [button setFrameSize:NSMakeSize(arrowWidth, NSHeight([button frame]))];
    [button setAccessibilityLabel:label];
    [button setToolTip:label];
    return button;
}

/// Gives the left edge.
- (CGFloat)placeButton:(NSButton *)button leftOf:(CGFloat)right {
    const CGFloat left = right - NSWidth([button frame]);
    [button setFrameOrigin:NSMakePoint(left, 0)];
    [button setAutoresizingMask:NSViewMinXMargin];
    [self addSubview:button];
    return left;
}

- (CGFloat)placeCountLeftOf:(CGFloat)right {
    _count = makeBarLabel(@"", tarnwick::secondaryTextColor());
    [_count setFrame:NSMakeRect(right - countWidth, (barHeight - labelHeight) / 2, countWidth, labelHeight)];
    [_count setAutoresizingMask:NSViewMinXMargin];
    [self addSubview:_count];
    return right - countWidth;
}

- (void)placeFieldFrom:(CGFloat)left to:(CGFloat)right {
    _field = [[[NSTextField alloc] initWithFrame:NSMakeRect(left, (barHeight - fieldHeight) / 2, right - left,
                                                     fieldHeight)] autorelease];
    [[_field cell] setLineBreakMode:NSLineBreakByTruncatingTail];
    [[_field cell] setScrollable:YES];
    [_field setDelegate:self];
    [_field setAutoresizingMask:NSViewWidthSizable];
    [self addSubview:_field];
}

#pragma mark Its place

- (BOOL)hasKeyboard {
    NSResponder *responder = [[self window] firstResponder];
    return [responder isKindOfClass:[NSView class]] && [static_cast<NSView *>(responder) isDescendantOf:self];
}

/// The table's height goes by this; its upper edge moves.
- (void)growTableBy:(CGFloat)height {
    NSView *scroll = [_table enclosingScrollView];
    const NSSize size = [scroll frame].size;
    [scroll setFrameSize:NSMakeSize(size.width, size.height + height)];
}

- (void)leaveTable {
    if ([self hasKeyboard]) {
        [[self window] makeFirstResponder:_table];
    }
    // One by one: the field tells its delegate of changes in this way too.
    for (NSString *name : followedNotifications()) {
        [[NSNotificationCenter defaultCenter] removeObserver:self name:name object:_table];
    }
    [self removeFromSuperview];
    [self growTableBy:barHeight + room];
    _table = nil;
}

- (void)showAbove:(NSTableView *)table {
    if (table == _table) {
        return;
    }
    if (_table) {
        [self leaveTable];
    }
    if (!table) {
        return;
    }
    _table = table;
    [self growTableBy:-(barHeight + room)];
    NSView *scroll = [table enclosingScrollView];
    const NSRect frame = [scroll frame];
    [self setFrame:NSMakeRect(NSMinX(frame), NSMaxY(frame) + room, NSWidth(frame), barHeight)];
    [[scroll superview] addSubview:self];
    [_field setAccessibilityLabel:tarnwick::toNSString(
                                      tarnwick::filled(tarnwick::toString(localizedText("Find in %@")),
                                          {tarnwick::toString([table accessibilityLabel])}))];
    for (NSString *name : followedNotifications()) {
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(showCount:)
                                                     name:name
                                                   object:table];
    }
    [self showCount:nil];
}

- (void)takeKeyboard {
    [[self window] makeFirstResponder:_field];
    [[_field currentEditor] selectAll:nil];
}

#pragma mark Looking

- (void)showCount:(NSNotification *)notification {
    [_count setStringValue:[_controller foundText]];
    const BOOL canStep = [_controller canFindAgain];
    [_previous setEnabled:canStep];
    [_next setEnabled:canStep];
}

- (void)controlTextDidChange:(NSNotification *)notification {
    [_controller lookFor:[_field stringValue]];
    [self showCount:notification];
}

/// Return and Escape; the text goes on being edited after the one.
- (BOOL)control:(NSControl *)control textView:(NSTextView *)textView doCommandBySelector:(SEL)command {
    if (sel_isEqual(command, @selector(insertNewline:))) {
        [_controller findNextRule:self];
        return YES;
    }
    if (sel_isEqual(command, @selector(cancelOperation:))) {
        [_controller closeFindBar:self];
        return YES;
    }
    return NO;
}

@end
