#import "front/PageDropView.h"

#import "front/RuleTableView.h"
#import "front/SettingsViewController+Actions.h"

namespace {

/// The one to answer with. A rule is made after what was dragged, which itself stays as it is.
NSDragOperation operationFrom(NSDragOperation offered) {
    for (const auto operation : {NSDragOperationCopy, NSDragOperationLink, NSDragOperationGeneric}) {
        if ((offered & operation) != 0) {
            return operation;
        }
    }
    return NSDragOperationNone;
}

} // namespace

/// A frame over a view, out of the mouse's way.
@interface DropMarkView : NSView
@end

@implementation DropMarkView

- (void)drawRect:(NSRect)rect {
    constexpr CGFloat lineWidth = 3;
    constexpr CGFloat radius = 5;
    NSBezierPath *path =
        [NSBezierPath bezierPathWithRoundedRect:NSInsetRect([self bounds], lineWidth / 2, lineWidth / 2)
                                        xRadius:radius
                                        yRadius:radius];
    [[NSColor keyboardFocusIndicatorColor] set];
    [path setLineWidth:lineWidth];
    [path stroke];
}

- (NSView *)hitTest:(NSPoint)point {
    return nil;
}

@end

@implementation PageDropView

- (instancetype)initWithFrame:(NSRect)frame
                     category:(tarnwick::RuleCategory)category
                   controller:(SettingsViewController *)controller {
    self = [super initWithFrame:frame];
    if (self) {
        _category = category;
        _controller = controller;
        [self registerForDraggedTypes:[NSArray arrayWithObject:NSFilenamesPboardType]];
    }
    return self;
}

- (void)takeDropsFor:(RuleTableView *)table {
    [table setFileDropView:self];
    _list = [table enclosingScrollView];
    _mark = [[[DropMarkView alloc] initWithFrame:[_list frame]] autorelease];
    [_mark setHidden:YES];
    [self addSubview:_mark];
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
    _answer = [_controller takesItemsOn:[info draggingPasteboard] forCategory:_category]
                  ? operationFrom([info draggingSourceOperationMask])
                  : NSDragOperationNone;
    return [self draggingUpdated:info];
}

/// What is dragged stays the same while the mouse moves.
- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
    [_mark setFrame:[_list frame]];
    [_mark setHidden:_answer == NSDragOperationNone];
    return _answer;
}

- (void)draggingExited:(id<NSDraggingInfo>)info {
    [_mark setHidden:YES];
}

- (void)draggingEnded:(id<NSDraggingInfo>)info {
    [_mark setHidden:YES];
}

- (BOOL)prepareForDragOperation:(id<NSDraggingInfo>)info {
    return _answer != NSDragOperationNone;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
    [_mark setHidden:YES];
    return [_controller addItemsOn:[info draggingPasteboard] toCategory:_category];
}

- (void)concludeDragOperation:(id<NSDraggingInfo>)info {
    [_mark setHidden:YES];
}

@end
