// Missing: undo of what is typed into a text field, as of GNUstep GUI 0.29, which can do it and forbids it.

#import <AppKit/AppKit.h>

@implementation NSTextFieldCell (TNFieldUndo)

- (BOOL)allowsUndo {
    return YES;
}

@end
