#pragma once

#import <AppKit/AppKit.h>

#include "gnustep/menus/TNMenuRows.h"

@class TNMenuView;

/// An open menu on the screen. It shows what fits there, and scrolls.
@interface TNMenuWindow : NSPanel {
@private
    NSMenu *_shownMenu;
    TNMenuView *_view;
}

- (instancetype)initWithMenu:(NSMenu *)menu;
- (NSMenu *)shownMenu;
- (const TNMenuRows &)rows;

/// Puts the window onto the screen with that upper corner there at which reading begins, or as near as the
/// screen allows. A height of the whole screen is the most.
- (void)showAt:(NSPoint)corner;
/// Beside a row of another open menu: behind it, as one reads, or before it where there is no room.
- (void)showBesideRow:(NSInteger)row of:(TNMenuWindow *)parent;
/// Scrolls so far that the row has its upper edge there on the screen, as far as that goes.
- (void)scrollRow:(NSInteger)row toScreenY:(CGFloat)y;

/// The row at a point of the screen; -1 for none, also where the menu only scrolls.
- (NSInteger)rowAtScreenPoint:(NSPoint)point;
- (NSRect)screenRectOfRow:(NSInteger)row;
- (BOOL)containsScreenPoint:(NSPoint)point;
/// -1, 1 or 0: where it scrolls while the pointer rests there.
- (int)scrollDirectionAtScreenPoint:(NSPoint)point;

- (NSInteger)highlightedRow;
/// -1 takes the mark away. The row is scrolled to.
- (void)highlightRow:(NSInteger)row;
/// By so many points, positive ones down.
- (void)scrollBy:(CGFloat)distance;

@end
