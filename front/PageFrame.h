#pragma once

#import <AppKit/AppKit.h>

#include <algorithm>

namespace tarnwick {

struct PageLayout;

/// Places views on a page from the top downwards, within its margins.
class PageFrame {
public:
    static constexpr CGFloat margin = 24;

    PageFrame(NSView *page, NSSize size)
        : page_(page), width_(size.width - 2 * margin), top_(size.height - margin) {}

    [[nodiscard]] CGFloat width() const { return width_; }
    /// How wide the page must at least be, margins included, for what has asked for a width.
    [[nodiscard]] CGFloat neededWidth() const { return needed_; }
    void need(CGFloat width) { needed_ = std::max(needed_, width + 2 * margin); }
    /// The lower edge of what has been placed so far.
    [[nodiscard]] CGFloat top() const { return top_; }
    void skip(CGFloat height) { top_ -= height; }

    /// Puts the view across the page, `height` high, below what is there.
    void add(NSView *view, CGFloat height);
    void place(NSView *view, NSRect frame, NSUInteger autoresizing);
    /// The page's title and what it is for.
    void addHeading(const PageLayout &layout);

private:
    NSView *page_;
    CGFloat width_;
    CGFloat top_;
    CGFloat needed_ = 0;
};

} // namespace tarnwick
