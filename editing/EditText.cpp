#include "editing/EditText.h"

#include "editing/RulePages.h"
#include "prefs/RuleRecord.h"

#include <algorithm>
#include <array>
#include <string>

namespace tarnwick {
namespace {

/// What an edit of the field with this identifier writes: the mark, if there is one, then the text.
struct EditableField {
    std::string_view identifier;
    RuleCategory category;
    /// The flag string that becomes "1"; empty: none.
    std::string_view mark;
    std::string_view textField;
};

constexpr std::array<EditableField, 7> editableFields{{
    {"NewFileDisplayName", RuleCategory::createNewFile, field::modified, field::displayName},
    {"newFileName", RuleCategory::copyFilesTo, "", field::displayName},
    {"Note", RuleCategory::copyFilesTo, "", field::displayName},
    {"commonPathDisplayName", RuleCategory::commonPath, "", field::displayName},
    {"CustomIconName", RuleCategory::customIcon, field::modified, field::displayName},
    {"OthersDisplayName", RuleCategory::others, field::nameModified, field::displayName},
    {"OthersNote", RuleCategory::others, field::noteModified, field::note},
}};

} // namespace

void EditText::endEditing(std::string_view identifier, long row, std::string_view text) {
    const auto edited = std::find_if(editableFields.begin(), editableFields.end(),
        [&](const auto& candidate) { return candidate.identifier == identifier; });
    if (edited == editableFields.end() || !pages_.list(edited->category).holds(row)) {
        return;
    }
    auto& list = pages_.list(edited->category);
    const auto index = static_cast<std::size_t>(row);
    const auto old = list[index];
    auto changed = edited->mark.empty() ? old : old.with(edited->mark, "1");
    changed = changed.with(edited->textField, text);
    list.replace(index, changed);
    const bool isTemplate = edited->category == RuleCategory::createNewFile;
    if (isTemplate) {
        templates_.noteMove(old, changed);
    }
    pages_.storeAndSynchronize(edited->category);
    pages_.reload(edited->category);
    pages_.publish(edited->category);
    if (isTemplate) {
        templates_.move(old, changed);
    }
}

} // namespace tarnwick
