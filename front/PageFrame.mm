#import "front/PageFrame.h"

#import "front/ControlMaking.h"

#include "ui/WindowLayout.h"

namespace tarnwick {
namespace {

constexpr CGFloat headingHeight = 26;
constexpr CGFloat explanationHeight = 18;
constexpr CGFloat headingGap = 14;

} // namespace

void PageFrame::add(NSView *view, CGFloat height) {
    top_ -= height;
    place(view, NSMakeRect(margin, top_, width_, height), NSViewWidthSizable | NSViewMinYMargin);
}

void PageFrame::place(NSView *view, NSRect frame, NSUInteger autoresizing) {
    [view setFrame:frame];
    [view setAutoresizingMask:autoresizing];
    [page_ addSubview:view];
}

void PageFrame::addHeading(const PageLayout &layout) {
    add(makeLabel(localizedText(layout.title), [NSFont boldSystemFontOfSize:20], [NSColor controlTextColor]),
        headingHeight);
    skip(2);
    add(makeLabel(localizedText(layout.explanation), [NSFont systemFontOfSize:12], secondaryTextColor()),
        explanationHeight);
    skip(headingGap);
}

} // namespace tarnwick
