#import "platform/appkit/PageDropView.h"

#import "platform/appkit/SettingsViewController.h"
#import "platform/appkit/StringConversion.h"

#include "ui/SettingsViewController.h"

#include <vector>

namespace {

constexpr CGFloat markWidth = 3;

std::vector<tarnwick::DroppedItem> itemsOn(NSPasteboard *pasteboard) {
    std::vector<tarnwick::DroppedItem> items;
    id paths = [pasteboard propertyListForType:NSFilenamesPboardType];
    if (![paths isKindOfClass:[NSArray class]]) {
        return items;
    }
    for (id path in paths) {
        BOOL isFolder = NO;
        if ([path isKindOfClass:[NSString class]] &&
            [[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&isFolder]) {
            const bool isPackage = [[NSWorkspace sharedWorkspace] isFilePackageAtPath:path];
            items.push_back({tarnwick::toString(path), isFolder && !isPackage});
        }
    }
    return items;
}

} // namespace

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

- (void)setMarkedView:(NSView *)view {
    _marked = view;
}

- (void)setMarking:(BOOL)marking {
    _isMarking = marking;
    [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)rect {
    if (_isMarking) {
        [[NSColor alternateSelectedControlColor] set];
        NSRectFill(NSInsetRect([_marked frame], -markWidth, -markWidth));
    }
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
    const auto paths =
        [_controller controller]->droppablePaths(_category, itemsOn([info draggingPasteboard]));
    const NSDragOperation offered = [info draggingSourceOperationMask];
    if (paths.empty() || !(offered & NSDragOperationCopy)) {
        return NSDragOperationNone;
    }
    [self setMarking:YES];
    return NSDragOperationCopy;
}

- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
    return _isMarking ? NSDragOperationCopy : NSDragOperationNone;
}

- (void)draggingExited:(id<NSDraggingInfo>)info {
    [self setMarking:NO];
}

- (BOOL)prepareForDragOperation:(id<NSDraggingInfo>)info {
    return _isMarking;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
    return [_controller controller]->addDroppedItems(_category, itemsOn([info draggingPasteboard]));
}

- (void)concludeDragOperation:(id<NSDraggingInfo>)info {
    [self setMarking:NO];
}

@end
