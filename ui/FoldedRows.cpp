#include "ui/FoldedRows.h"

#include "prefs/RuleList.h"
#include "ui/RuleColumns.h"
#include "ui/RuleRows.h"
#include "values/FoldedText.h"

#include <algorithm>

namespace tarnwick {

const std::vector<std::string>& FoldedRows::of(RuleCategory category) const {
    auto& texts = texts_[category];
    if (texts.revision != revision(category)) {
        texts.revision = revision(category);
        texts.rows.clear();
        texts.rows.reserve(lists_[category].size());
        for (long row = 0; row < rows_.count(category); ++row) {
            texts.rows.push_back(textsOf(category, row));
        }
    }
    return texts.rows;
}

std::size_t FoldedRows::revision(RuleCategory category) const {
    return lists_[category].revision();
}

std::string FoldedRows::textsOf(RuleCategory category, long row) const {
    std::string texts;
    for (const auto& column : columnsOf(category)) {
        if (!column.isSearched) {
            continue;
        }
        const auto cell = rows_.cell(category, column.identifier, row);
        if (const auto* field = std::get_if<TextFieldCell>(&cell.control)) {
            auto text = folded(field->text);
            // What is looked for has no line breaks, and so never reaches from one text into the next.
            std::replace(text.begin(), text.end(), '\n', ' ');
            texts.append(text).append("\n");
        }
    }
    return texts;
}

} // namespace tarnwick
