#include "editing/EditText.h"

#include "editing/ListEditor.h"
#include "prefs/RuleList.h"

#include <algorithm>
#include <array>

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
    if (edited == editableFields.end() || !editor_.list(edited->category).holds(row)) {
        return;
    }
    const auto index = static_cast<std::size_t>(row);
    const auto& old = editor_.list(edited->category)[index];
    const auto marked = edited->mark.empty() ? old : old.with(edited->mark, "1");
    editor_.replace(edited->category, index, marked.with(edited->textField, text));
}

} // namespace tarnwick
