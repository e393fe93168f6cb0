#pragma once

#include <X11/Xlib.h>

#include <string>

/// The list of addresses that another program drags, read over a connection of its own: no event of this
/// program's is taken, and none comes in between. Empty when the drag offers none, or when they do not come
/// in time.
std::string TNDraggedAddresses(Display* display, const XClientMessageEvent& enter);
