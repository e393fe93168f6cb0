#include "editing/EditText.h"

#include "editing/ListEditor.h"
#include "prefs/RuleList.h"

#include <optional>

namespace tarnwick {
namespace {

/// What an edit writes: the mark, if there is one, then the text.
struct EditedField {
    RuleCategory category;
    /// The flag string that becomes "1"; empty: none.
    std::string_view mark;
    std::string_view text;
};

/// Nothing for a field that is none of a record's. The targets' names are known by a second identifier too.
std::optional<EditedField> editedField(std::string_view identifier) {
    if (identifier == "OthersNote") {
        return EditedField{RuleCategory::others, field::noteModified, field::note};
    }
    const auto name =
        identifier == "newFileName" ? factsOf(RuleCategory::copyFilesTo).nameIdentifier : identifier;
    for (const auto category : allRuleCategories) {
        if (factsOf(category).nameIdentifier == name) {
            return EditedField{category, factsOf(category).nameMark, field::displayName};
        }
    }
    return std::nullopt;
}

} // namespace

void EditText::endEditing(std::string_view identifier, long row, std::string_view text) {
    const auto edited = editedField(identifier);
    if (!edited || !editor_.list(edited->category).holds(row)) {
        return;
    }
    const auto index = static_cast<std::size_t>(row);
    const auto& old = editor_.list(edited->category)[index];
    const auto marked = edited->mark.empty() ? old : old.with(edited->mark, "1");
    const auto kind = edited->text == field::note ? StepKind::editNote : StepKind::rename;
    editor_.replace(edited->category, index, marked.with(edited->text, text), kind);
}

} // namespace tarnwick
