#import "front/KeyViewLoop.h"

#import "front/LayoutDirection.h"

#include <algorithm>
#include <vector>

namespace tarnwick {
namespace {

/// Controls whose upper edges differ by less stand in one line.
constexpr CGFloat lineTolerance = 8;

bool takesKeys(NSView *view) {
    return [view isKindOfClass:[NSButton class]] || [view isKindOfClass:[NSTableView class]] ||
           ([view isKindOfClass:[NSTextField class]] && [static_cast<NSTextField *>(view) isEditable]);
}

/// Everything below the view that takes keys; what is hidden does not, nor what stands in a table's cells.
void collect(NSView *view, std::vector<NSView *> &found) {
    if ([view isHidden]) {
        return;
    }
    if (takesKeys(view)) {
        found.push_back(view);
        return;
    }
    for (NSView *inner in [view subviews]) {
        collect(inner, found);
    }
}

/// The upper corner at which reading begins, in the window; a table's is that of the part which can be seen.
NSPoint cornerOf(NSView *view) {
    const NSRect frame = [view convertRect:[view visibleRect] toView:nil];
    return NSMakePoint(isRightToLeft() ? -NSMaxX(frame) : NSMinX(frame), NSMaxY(frame));
}

void sortAsRead(std::vector<NSView *> &views) {
    const auto higher = [](NSView *one, NSView *other) { return cornerOf(one).y > cornerOf(other).y; };
    const auto further = [](NSView *one, NSView *other) { return cornerOf(one).x < cornerOf(other).x; };
    std::stable_sort(views.begin(), views.end(), higher);
    for (auto line = views.begin(); line != views.end();) {
        const CGFloat top = cornerOf(*line).y;
        const auto next = std::find_if(
            line, views.end(), [top](NSView *view) { return top - cornerOf(view).y > lineTolerance; });
        std::stable_sort(line, next, further);
        line = next;
    }
}

} // namespace

NSView *linkKeyViews(NSTabView *tabView) {
    std::vector<NSView *> loop;
    for (NSView *view in [[tabView superview] subviews]) {
        if (view != tabView) {
            collect(view, loop);
        }
    }
    sortAsRead(loop);
    std::vector<NSView *> page;
    collect([[tabView selectedTabViewItem] view], page);
    sortAsRead(page);
    loop.insert(loop.end(), page.begin(), page.end());
    for (std::size_t index = 0; index < loop.size(); ++index) {
        [loop[index] setNextKeyView:loop[(index + 1) % loop.size()]];
    }
    return loop.empty() ? nil : loop.front();
}

} // namespace tarnwick
