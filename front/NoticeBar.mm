#import "front/NoticeBar.h"

#import "front/Colors.h"
#import "front/NoticeLine.h"

@implementation NoticeBar

- (instancetype)initAbove:(NSView *)below controller:(id)controller {
    const NSRect frame = [below frame];
    self = [super initWithFrame:NSMakeRect(NSMinX(frame), NSMaxY(frame), NSWidth(frame), 0)];
    if (self) {
        _below = below;
        _controller = controller;
        [self setAutoresizingMask:NSViewWidthSizable | NSViewMinYMargin];
        [self setHidden:YES];
        // In another width the texts may have more lines, or less.
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(layOut:)
                                                     name:NSViewFrameDidChangeNotification
                                                   object:[below superview]];
    }
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [super dealloc];
}

- (void)drawRect:(NSRect)rect {
    constexpr CGFloat ground = 0.06;
    constexpr CGFloat line = 0.15;
    tarnwick::fillWithShade([self bounds], ground);
    tarnwick::fillWithShade(NSMakeRect(0, 0, NSWidth([self bounds]), 1), line);
}

- (void)layOut:(NSNotification *)notification {
    const NSRect below = [_below frame];
    const CGFloat width = NSWidth(below);
    const CGFloat top = NSMaxY(below) + NSHeight([self frame]);
    CGFloat height = 0;
    for (NoticeLine *line in [self subviews]) {
        [line layOutForWidth:width];
        height += NSHeight([line frame]);
    }
    if (height != NSHeight([self frame])) {
        [_below setFrame:NSMakeRect(NSMinX(below), NSMinY(below), width, top - height - NSMinY(below))];
        [[self superview] setNeedsDisplay:YES];
    }
    [self setFrame:NSMakeRect(NSMinX(below), top - height, width, height)];
    CGFloat bottom = height;
    for (NoticeLine *line in [self subviews]) {
        bottom -= NSHeight([line frame]);
        [line setFrameOrigin:NSMakePoint(0, bottom)];
    }
}

- (BOOL)showNotices:(const std::vector<tarnwick::Notice> &)notices {
    if (notices == _notices) {
        return NO;
    }
    _notices = notices;
    for (NSView *line in [[[self subviews] copy] autorelease]) {
        // What is in it may have been pressed for this.
        [[line retain] autorelease];
        [line removeFromSuperview];
    }
    for (const auto &notice : notices) {
        [self addSubview:[[[NoticeLine alloc] initWithNotice:notice controller:_controller] autorelease]];
    }
    [self setHidden:notices.empty()];
    [self layOut:nil];
    [self setNeedsDisplay:YES];
    return YES;
}

@end
