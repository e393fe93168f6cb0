#pragma once

#include <string_view>

namespace tarnwick {

class ListEditor;

/// Writes the text of a finished in-place edit into its record. The text is not validated.
class EditText {
public:
    explicit EditText(ListEditor& editor) : editor_(editor) {}

    /// `identifier` is the field's, `row` its tag. An identifier that names no field of a record, or a row
    /// that the list does not have, changes nothing. Order: list, store, synchronise, reload, publish, and
    /// last, for CreateNewFile, the move of the template file, whose failure is not examined.
    void endEditing(std::string_view identifier, long row, std::string_view text);

private:
    ListEditor& editor_;
};

} // namespace tarnwick
