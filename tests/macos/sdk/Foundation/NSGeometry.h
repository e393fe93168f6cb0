#pragma once

#include <CoreGraphics/CoreGraphics.h>

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

extern "C" const NSRect NSZeroRect;
extern "C" const NSSize NSZeroSize;

inline NSPoint NSMakePoint(CGFloat x, CGFloat y) {
    return {x, y};
}
inline NSSize NSMakeSize(CGFloat width, CGFloat height) {
    return {width, height};
}
inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return {{x, y}, {width, height}};
}
inline CGFloat NSWidth(NSRect rect) {
    return rect.size.width;
}
inline CGFloat NSHeight(NSRect rect) {
    return rect.size.height;
}
inline CGFloat NSMinX(NSRect rect) {
    return rect.origin.x;
}
inline CGFloat NSMinY(NSRect rect) {
    return rect.origin.y;
}
inline CGFloat NSMaxX(NSRect rect) {
    return rect.origin.x + rect.size.width;
}
inline CGFloat NSMaxY(NSRect rect) {
    return rect.origin.y + rect.size.height;
}
extern "C" NSRect NSInsetRect(NSRect rect, CGFloat dx, CGFloat dy);
