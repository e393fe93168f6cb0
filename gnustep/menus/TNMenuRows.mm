// Part of TNMenuTracking.mm, where GNUstep GUI 0.29 falls short: the places of a menu's rows. GNUstep makes a
// cell for each, which takes long for thousands.

#import "gnustep/menus/TNMenuRows.h"

#import "gnustep/menus/KeyLabels.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr CGFloat rowHeight = 24;
constexpr CGFloat separatorHeight = 9;
constexpr CGFloat imageGap = 8;
/// Between a title and the keys or the arrow behind it.
constexpr CGFloat columnGap = 28;
constexpr CGFloat arrowWidth = 10;
constexpr CGFloat smallestWidth = 100;
/// The longest texts are measured, and no more: that alone takes long for thousands.
constexpr std::size_t mostMeasured = 64;

CGFloat widestOf(std::vector<NSString *> texts) {
    const auto isLonger = [](NSString *one, NSString *other) { return [one length] > [other length]; };
    const auto measured = std::min(texts.size(), mostMeasured);
    std::partial_sort(
        texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(measured), texts.end(), isLonger);
    CGFloat widest = 0;
    for (std::size_t place = 0; place < measured; ++place) {
        widest = std::max(widest, [texts[place] sizeWithAttributes:TNMenuRows::attributes(nil)].width);
    }
    return std::ceil(widest);
}

} // namespace

NSDictionary *TNMenuRows::attributes(NSColor *color) {
    return [NSDictionary dictionaryWithObjectsAndKeys:[NSFont menuFontOfSize:0], NSFontAttributeName, color,
                         NSForegroundColorAttributeName, nil];
}

TNMenuRows::TNMenuRows(NSMenu *menu) : menu_(menu) {
    std::vector<NSString *> titles;
    std::vector<NSString *> keys;
    bool hasSubmenus = false;
    CGFloat top = padding;
    for (NSMenuItem *item in [menu itemArray]) {
        tops_.push_back(top);
        top += [item isSeparatorItem] ? separatorHeight : rowHeight;
        hasMarks_ = hasMarks_ || [item state] != NSControlStateValueOff;
        hasImages_ = hasImages_ || [item image] != nil;
        hasSubmenus = hasSubmenus || [item hasSubmenu];
        titles.push_back([item title] ? [item title] : @"");
        keys.push_back(TNKeyLabel(item));
    }
    tops_.push_back(top);
    const CGFloat keyWidth = widestOf(keys);
    const CGFloat trailing = std::max(keyWidth, hasSubmenus ? arrowWidth : 0);
    width_ = std::max(smallestWidth,
        titleLeading() + widestOf(titles) + (trailing > 0 ? columnGap + trailing : 0) + sideMargin + padding);
}

NSRect TNMenuRows::rectOf(NSInteger row) const {
    const auto index = static_cast<std::size_t>(row);
    return NSMakeRect(0, tops_[index], width_, tops_[index + 1] - tops_[index]);
}

NSInteger TNMenuRows::rowAt(CGFloat y) const {
    const auto below = std::upper_bound(tops_.begin(), tops_.end(), y);
    return below == tops_.begin() || below == tops_.end() ? -1 : below - tops_.begin() - 1;
}

bool TNMenuRows::mayBeChosen(NSInteger row) const {
    if (row < 0 || row >= count()) {
        return false;
    }
    NSMenuItem *item = [menu_ itemAtIndex:row];
    return ![item isSeparatorItem] && [item isEnabled];
}

NSInteger TNMenuRows::next(NSInteger row, int step) const {
    const NSInteger rows = count();
    NSInteger place = row < 0 && step < 0 ? 0 : row;
    for (NSInteger tries = 0; tries < rows; ++tries) {
        place = (place + step + rows) % rows;
        if (mayBeChosen(place)) {
            return place;
        }
    }
    return -1;
}

CGFloat TNMenuRows::imageLeading() const {
    return sideMargin + (hasMarks_ ? markWidth : 0);
}

CGFloat TNMenuRows::titleLeading() const {
    return imageLeading() + (hasImages_ ? imageSize + imageGap : 0);
}
