#include "editing/ListStep.h"

#include "prefs/GroupContainer.h"

#include <algorithm>
#include <utility>

namespace tarnwick {
namespace {

/// Where a row stands once `gone` is not there any more; of the gone one, the row that follows it.
void moveUp(std::optional<std::size_t>& row, std::optional<std::size_t> gone) {
    if (row && gone && *gone < *row) {
        --*row;
    }
}

} // namespace

void ListStep::addTo(std::vector<FinalChange>& finals) const {
    const auto same = [this](const FinalChange& final) { return final.category == category_; };
    const auto known = std::find_if(finals.begin(), finals.end(), same);
    if (known != finals.end()) {
        known->left = back_.applied(std::move(known->left));
        known->missing.reset();
    } else {
        finals.push_back({category_, back_.applied(now_()), now_(), back_.insertedRow()});
    }
}

bool ListStep::fit(FinalChange& later) {
    if (later.category != category_ || later.isOver()) {
        return true;
    }
    auto earlier = back_.applied(later.left);
    if (facts_.replacesList) {
        back_ = ListChange(later.instead, earlier);
        later.left = earlier;
        later.instead = std::move(earlier);
        return true;
    }
    if (!later.missing) {
        later.left = std::move(earlier);
        return false;
    }
    leaveOut(later.left[*later.missing]);
    const auto place = back_.placeOf(*later.missing);
    auto without = earlier;
    if (place) {
        without.erase(without.begin() + static_cast<std::ptrdiff_t>(*place));
    }
    moveUp(facts_.rowBefore, later.missing);
    moveUp(facts_.rowAfter, place);
    back_ = ListChange(later.instead, without);
    later = {category_, std::move(earlier), std::move(without), place};
    return !back_.isEmpty();
}

/// A file of its name that is there some day is somebody else's.
void ListStep::leaveOut(const RuleRecord& record) {
    if (auto* removed = std::get_if<TemplatesRemoved>(&files_)) {
        std::erase(removed->names, templateFileName(record));
    }
}

} // namespace tarnwick
