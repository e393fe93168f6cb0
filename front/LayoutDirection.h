#pragma once

#import <AppKit/AppKit.h>

namespace tarnwick {

/// Whether the window is to be read from right to left, as macOS decides by the application's language.
bool isRightToLeft();

/// Where a line of text begins.
NSTextAlignment leadingAlignment();

/// The place so far from the side of a room at which reading begins.
CGFloat leadingPlace(NSRect room, CGFloat distance);

/// Lays out anew, for a window that is read from right to left, what was laid out from left to right: every
/// view inside goes to the other side of the one that it is in, at every depth, and texts begin at the right.
/// What is in a list or a control stays, since AppKit turns that around itself. Otherwise nothing changes.
void mirrorIfRightToLeft(NSView *view);

} // namespace tarnwick
