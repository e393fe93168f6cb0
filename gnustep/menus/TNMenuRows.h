#pragma once

#import <AppKit/AppKit.h>

#include <vector>

/// Where the rows of a menu are, counted from its upper edge, and how wide it has to be. Made anew each time
/// that the menu opens; the menu does not change while it is open.
class TNMenuRows {
public:
    /// Not retained: the menu outlives this.
    explicit TNMenuRows(NSMenu *menu);

    [[nodiscard]] NSSize size() const { return NSMakeSize(width_, tops_.back() + padding); }
    [[nodiscard]] NSInteger count() const { return static_cast<NSInteger>(tops_.size()) - 1; }
    [[nodiscard]] NSRect rectOf(NSInteger row) const;
    /// -1 above the first and below the last.
    [[nodiscard]] NSInteger rowAt(CGFloat y) const;
    /// Not a separator, and enabled.
    [[nodiscard]] bool mayBeChosen(NSInteger row) const;
    /// The nearest row in that direction that may be chosen, beginning behind this one and going round; -1
    /// when there is none. From -1 it begins at the end that it goes away from.
    [[nodiscard]] NSInteger next(NSInteger row, int step) const;

    /// The columns of a row, from the side at which reading begins.
    [[nodiscard]] CGFloat imageLeading() const;
    [[nodiscard]] CGFloat titleLeading() const;

    static NSDictionary *attributes(NSColor *color);
    static constexpr CGFloat padding = 5;
    static constexpr CGFloat sideMargin = 10;
    static constexpr CGFloat markWidth = 16;
    static constexpr CGFloat imageSize = 16;

private:
    NSMenu *menu_;
    /// The upper edge of each row, and the lower edge of the last.
    std::vector<CGFloat> tops_;
    CGFloat width_ = 0;
    bool hasMarks_ = false;
    bool hasImages_ = false;
};
