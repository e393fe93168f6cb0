#import "front/ChooseFolderButton.h"

@implementation ChooseFolderButton

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [super dealloc];
}

- (void)followTable:(NSTableView *)table {
    _table = table;
    // The window updates after every event, whatever changed the selection.
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(followSelection:)
                                                 name:NSWindowDidUpdateNotification
                                               object:nil];
    [self followSelection:nil];
}

- (void)followSelection:(NSNotification *)notification {
    const NSInteger row = [_table selectedRow];
    if ([self tag] != row) {
        [self setTag:row];
    }
    if ([self isEnabled] != (row >= 0)) {
        [self setEnabled:row >= 0];
    }
}

@end
