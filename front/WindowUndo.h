#pragma once

#import <AppKit/AppKit.h>

/// The undo managers of the settings window, as its delegate: the one of the user's steps and, while a field
/// is being edited, one that knows that typing alone.
@interface WindowUndo : NSObject <NSWindowDelegate> {
@private
    NSUndoManager *_steps;
    NSUndoManager *_typing;
}

- (NSUndoManager *)steps;

@end
