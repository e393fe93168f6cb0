#import "platform/appkit/RuleTableView.h"

namespace {

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

} // namespace

@implementation RuleTableView

- (void)dealloc {
    [_nameColumn release];
    [_switchColumn release];
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
    [hint setAutoresizingMask:NSViewMinXMargin | NSViewMaxXMargin | NSViewMinYMargin | NSViewMaxYMargin];
    [self addSubview:hint];
    [self showOrHideEmptyHint];
}

- (void)showOrHideEmptyHint {
    [_emptyHint setHidden:[self numberOfRows] > 0];
}

- (void)reloadData {
    [super reloadData];
    [self showOrHideEmptyHint];
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

- (void)editSelectedName {
    NSTextField *field = static_cast<NSTextField *>([self selectedControlInColumn:_nameColumn
                                                                          ofClass:[NSTextField class]]);
    if ([field isEditable]) {
        [[self window] makeFirstResponder:field];
    }
}

- (void)toggleSelectedSwitch {
    [[self selectedControlInColumn:_switchColumn ofClass:[NSButton class]] performClick:self];
}

- (void)keyDown:(NSEvent *)event {
    NSString *characters = [event charactersIgnoringModifiers];
    const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
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
        [self editSelectedName];
        return;
    case ' ':
        [self toggleSelectedSwitch];
        return;
    default:
        [super keyDown:event];
    }
}

@end
