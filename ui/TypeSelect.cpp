#include "ui/TypeSelect.h"

#include "ui/FoldedRows.h"
#include "values/FoldedText.h"

#include <algorithm>

namespace tarnwick {

bool TypeSelect::goesOn(RuleCategory category, long selected, double seconds) const {
    return !typed_.empty() && category_ == category && selected_ == selected &&
           seconds - seconds_ <= pauseSeconds;
}

TypeSelect::Answer TypeSelect::type(
    RuleCategory category, long selected, std::string_view characters, double seconds) {
    if (!goesOn(category, selected, seconds)) {
        typed_.clear();
        if (characters.starts_with(' ')) {
            return {};
        }
    }
    typed_ += characters;
    category_ = category;
    selected_ = selected;
    seconds_ = seconds;
    // As a whole: a mark may belong to the letter typed before it.
    const auto beginning = folded(typed_);
    const auto& rows = rows_.of(category);
    const auto found = std::find_if(rows.begin(), rows.end(),
        [&beginning](const std::string& texts) { return texts.starts_with(beginning); });
    if (beginning.empty() || found == rows.end()) {
        return {.isTaken = true};
    }
    selected_ = found - rows.begin();
    return {.isTaken = true, .row = selected_};
}

} // namespace tarnwick
