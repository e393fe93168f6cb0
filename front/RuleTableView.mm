#import "front/RuleTableView.h"

#import "front/LayoutDirection.h"
#import "front/SettingsViewController+Finding.h"

NSString *const RuleTableViewDidReloadNotification = @"RuleTableViewDidReload";

namespace {

constexpr unichar escape = 0x1B;

/// The first control of the wanted class in a cell, the cell itself included; nil when there is none.
NSControl *controlIn(NSView *cell, Class wanted) {
    if ([cell isKindOfClass:wanted]) {
        return static_cast<NSControl *>(cell);
    }
    for (NSView *view in [cell subviews]) {
        if ([view isKindOfClass:wanted]) {
            return static_cast<NSControl *>(view);
        }
    }
    return nil;
}

/// A table has the steps of a drag in which it decides; which of the others it has is said nowhere.
bool tablesHave(SEL step) {
    return [NSTableView instancesRespondToSelector:step];
}

/// Whether the key was typed, and not pressed to have something done.
bool isTyped(NSEvent *event) {
    constexpr NSUInteger commands = NSEventModifierFlagCommand | NSEventModifierFlagControl;
    NSString *characters = [event characters];
    const unichar first = [characters length] > 0 ? [characters characterAtIndex:0] : 0;
    const bool isFunctionKey = first >= 0xF700 && first <= 0xF8FF;
    return ([event modifierFlags] & commands) == 0 && first >= ' ' && first != NSDeleteCharacter &&
           !isFunctionKey;
}

} // namespace

@implementation NSTableView (RuleReloading)

- (void)reloadDataUnlessEdited {
    id editor = [[self window] firstResponder];
    id field = [editor isKindOfClass:[NSText class]] ? [editor delegate] : nil;
    if (![field isKindOfClass:[NSView class]] || ![field isDescendantOf:self]) {
        [self reloadData];
    }
}

@end

@implementation RuleTableView

- (void)dealloc {
    [_nameColumn release];
    [_switchColumn release];
    [_emptySpaceMenu release];
    [super dealloc];
}

- (void)setRemoveButton:(NSButton *)button {
    _removeButton = button;
}

- (void)setNameColumn:(NSString *)nameColumn switchColumn:(NSString *)switchColumn {
    [_nameColumn autorelease];
    _nameColumn = [nameColumn copy];
    [_switchColumn autorelease];
    _switchColumn = [switchColumn copy];
}

- (void)setEmptyHint:(NSView *)hint {
    _emptyHint = hint;
    const NSSize size = [hint frame].size;
    [hint setFrameOrigin:NSMakePoint((NSWidth([self bounds]) - size.width) / 2,
                             (NSHeight([self bounds]) - size.height) / 2)];
    [hint setAutoresizingMask:NSViewWidthSizable | NSViewMinYMargin | NSViewMaxYMargin];
    [self addSubview:hint];
    [self showOrHideEmptyHint];
}

- (void)showOrHideEmptyHint {
    const BOOL hasRows = [self numberOfRows] > 0;
    [_emptyHint setHidden:hasRows];
    // Stripes behind the hint would only disturb it.
    [self setUsesAlternatingRowBackgroundColors:hasRows];
}

- (void)reloadData {
    [super reloadData];
    [self showOrHideEmptyHint];
    [[NSNotificationCenter defaultCenter] postNotificationName:RuleTableViewDidReloadNotification
                                                        object:self];
}

- (void)setFileDropView:(NSView *)view {
    _fileDropView = view;
}

/// A file manager may drag files as text too, the one kind that the table itself is registered for.
- (NSView *)fileDropViewFor:(id<NSDraggingInfo>)info {
    return [[[info draggingPasteboard] types] containsObject:NSFilenamesPboardType] ? _fileDropView : nil;
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
    NSView *view = [self fileDropViewFor:info];
    return view ? [view draggingEntered:info] : [super draggingEntered:info];
}

- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
    NSView *view = [self fileDropViewFor:info];
    return view ? [view draggingUpdated:info] : [super draggingUpdated:info];
}

- (void)draggingExited:(id<NSDraggingInfo>)info {
    // Without a drag to tell about, both have ended theirs.
    [_fileDropView draggingExited:info];
    if (tablesHave(@selector(draggingExited:))) {
        [super draggingExited:info];
    }
}

- (BOOL)prepareForDragOperation:(id<NSDraggingInfo>)info {
    NSView *view = [self fileDropViewFor:info];
    if (view) {
        return [view prepareForDragOperation:info];
    }
    return !tablesHave(@selector(prepareForDragOperation:)) || [super prepareForDragOperation:info];
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
    NSView *view = [self fileDropViewFor:info];
    return view ? [view performDragOperation:info] : [super performDragOperation:info];
}

- (void)concludeDragOperation:(id<NSDraggingInfo>)info {
    [_fileDropView concludeDragOperation:info];
    if (tablesHave(@selector(concludeDragOperation:))) {
        [super concludeDragOperation:info];
    }
}

- (NSControl *)selectedControlInColumn:(NSString *)identifier ofClass:(Class)wanted {
    const NSInteger row = [self selectedRow];
    const NSInteger column = [identifier length] > 0 ? [self columnWithIdentifier:identifier] : -1;
    if (row < 0 || column < 0) {
        return nil;
    }
    [self scrollRowToVisible:row];
    return controlIn([self viewAtColumn:column row:row makeIfNecessary:YES], wanted);
}

- (void)editSelectedRowInColumn:(NSString *)identifier {
    NSTextField *field = static_cast<NSTextField *>([self selectedControlInColumn:identifier
                                                                          ofClass:[NSTextField class]]);
    if ([field isEditable]) {
        [[self window] makeFirstResponder:field];
    }
}

- (void)abandonEditOf:(NSControl *)field {
    [field abortEditing];
    [[self window] makeFirstResponder:self];
    // The field itself may have taken the text on as it was typed.
    [self reloadData];
}

- (void)toggleSelectedSwitch {
    [[self selectedControlInColumn:_switchColumn ofClass:[NSButton class]] performClick:self];
}

- (void)setEmptySpaceMenu:(NSMenu *)menu {
    [_emptySpaceMenu autorelease];
    _emptySpaceMenu = [menu retain];
}

/// As after a click there, what the menu offers is about the row.
- (NSMenu *)menuForEvent:(NSEvent *)event {
    // Ends a running edit first.
    if (![[self window] makeFirstResponder:self]) {
        return nil;
    }
    const NSInteger row = [self rowAtPoint:[self convertPoint:[event locationInWindow] fromView:nil]];
    if (row < 0) {
        [self deselectAll:self];
    } else {
        [self selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(row)]
            byExtendingSelection:NO];
    }
    [self sendAction:[self action] to:[self target]];
    return row < 0 ? _emptySpaceMenu : [self menu];
}

/// Below the selected row.
- (void)showMenuOfSelectedRow {
    const NSInteger row = [self selectedRow];
    if (row < 0) {
        return;
    }
    [self scrollRowToVisible:row];
    constexpr CGFloat indentation = 40;
    const NSPoint place =
        NSMakePoint(tarnwick::leadingPlace([self bounds], indentation), NSMaxY([self rectOfRow:row]));
    [[self menu] popUpMenuPositioningItem:nil atLocation:place inView:self];
}

- (void)keyDown:(NSEvent *)event {
    if (isTyped(event) && [static_cast<SettingsViewController *>([self target]) table:self
                                                                        takesTypedKey:event]) {
        return;
    }
    NSString *characters = [event charactersIgnoringModifiers];
    const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
    const bool erases = key == NSDeleteCharacter || key == NSBackspaceCharacter;
    if (erases && [static_cast<SettingsViewController *>([self target]) table:self takesErasingKey:event]) {
        return;
    }
    switch (key) {
    case NSDeleteCharacter:
    case NSBackspaceCharacter:
    case NSDeleteFunctionKey:
        if ([_removeButton isEnabled]) {
            [_removeButton performClick:self];
        }
        return;
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
        [self editSelectedRowInColumn:_nameColumn];
        return;
    case ' ':
        [self toggleSelectedSwitch];
        return;
    case escape:
        [NSApp sendAction:@selector(closeFindBar:) to:[self target] from:self];
        return;
    case NSMenuFunctionKey:
        [self showMenuOfSelectedRow];
        return;
    default:
        [super keyDown:event];
    }
}

@end
