#pragma once

#include "prefs/TemplateFiles.h"

#include <string_view>

namespace tarnwick {

class LocalPreferences;
class RulePages;

/// Writes the text of a finished in-place edit into its record. The text is not validated.
class EditText {
public:
    EditText(const Platform& platform, LocalPreferences& local, RulePages& pages)
        : templates_(platform, local), pages_(pages) {}

    /// `identifier` is the field's, `row` its tag. An identifier that names no field of a record, or a row
    /// that the list does not have, changes nothing. Order: list, store, synchronise, reload, publish, and
    /// last, for CreateNewFile, the move of the template file, whose failure is not examined.
    void endEditing(std::string_view identifier, long row, std::string_view text);

private:
    TemplateFiles templates_;
    RulePages& pages_;
};

} // namespace tarnwick
