#include "ui/RuleSearch.h"

#include "ui/FoldedRows.h"
#include "values/FoldedText.h"

#include <algorithm>

namespace tarnwick {

void RuleSearch::lookFor(std::string_view text) {
    text_ = folded(text);
    std::replace(text_.begin(), text_.end(), '\n', ' ');
    found_.reset();
}

const std::vector<long>& RuleSearch::found(RuleCategory category) const {
    const auto revision = rows_.revision(category);
    if (!found_ || found_->category != category || found_->revision != revision) {
        found_.emplace(Found{category, revision, {}});
        const auto& rows = rows_.of(category);
        for (std::size_t row = 0; hasText() && row < rows.size(); ++row) {
            if (rows[row].find(text_) != std::string::npos) {
                found_->rows.push_back(static_cast<long>(row));
            }
        }
    }
    return found_->rows;
}

std::optional<long> RuleSearch::find(RuleCategory category, long selected, SearchStep step) const {
    const auto& rows = found(category);
    if (rows.empty()) {
        return std::nullopt;
    }
    if (step == SearchStep::previous) {
        const auto from = std::lower_bound(rows.begin(), rows.end(), selected);
        return from == rows.begin() ? rows.back() : *std::prev(from);
    }
    const auto next = step == SearchStep::here ? std::lower_bound(rows.begin(), rows.end(), selected)
                                               : std::upper_bound(rows.begin(), rows.end(), selected);
    return next == rows.end() ? rows.front() : *next;
}

RuleSearch::Count RuleSearch::count(RuleCategory category, long selected) const {
    const auto& rows = found(category);
    const auto place = std::lower_bound(rows.begin(), rows.end(), selected);
    const bool isFound = place != rows.end() && *place == selected;
    return {isFound ? static_cast<std::size_t>(place - rows.begin()) + 1 : 0, rows.size()};
}

} // namespace tarnwick
