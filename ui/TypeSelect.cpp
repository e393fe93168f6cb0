#include "ui/TypeSelect.h"

#include "ui/FoldedRows.h"
#include "values/FoldedText.h"
#include "values/Utf8.h"

#include <algorithm>

namespace tarnwick {

bool TypeSelect::goesOn(RuleCategory category, long selected, double seconds) const {
    return category_ == category && selected_ == selected && seconds - seconds_ <= pauseSeconds;
}

TypeSelect::Answer TypeSelect::type(
    RuleCategory category, long selected, std::string_view characters, double seconds) {
    if (!goesOn(category, selected, seconds)) {
        typed_.clear();
    }
    if (typed_.empty() && characters.starts_with(' ')) {
        return {};
    }
    typed_ += characters;
    category_ = category;
    return select(selected, seconds);
}

TypeSelect::Answer TypeSelect::erase(RuleCategory category, long selected, double seconds) {
    if (!goesOn(category, selected, seconds)) {
        return {};
    }
    typed_.resize(startOfLastCharacter(typed_));
    return select(selected, seconds);
}

TypeSelect::Answer TypeSelect::select(long selected, double seconds) {
    selected_ = selected;
    seconds_ = seconds;
    // As a whole: a mark may belong to the letter typed before it.
    const auto beginning = folded(typed_);
    const auto& rows = rows_.of(*category_);
    const auto found = std::find_if(rows.begin(), rows.end(),
        [&beginning](const std::string& texts) { return texts.starts_with(beginning); });
    if (beginning.empty() || found == rows.end()) {
        return {.isTaken = true};
    }
    selected_ = found - rows.begin();
    return {.isTaken = true, .row = selected_};
}

} // namespace tarnwick
