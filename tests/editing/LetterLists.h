#pragma once

#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {

/// Lists of records that are each named by a letter, so that an order is a word.
class LetterListTest : public SettingsFixture {
protected:
    /// A list of as many enabled records as the text has letters.
    void storeLetters(RuleCategory category, const std::string& letters) {
        std::vector<RuleRecord> records;
        for (const auto letter : letters) {
            const std::string name(1, letter);
            records.push_back(makeRecord({{"enable", 1}, {"displayName", name}, {"Action", name}}));
        }
        storeList(category, records);
    }
    /// The names in the column as the table shows them, one after the other.
    [[nodiscard]] std::string letters(RuleCategory category, const std::string& column) const {
        std::string found;
        for (long row = 0; row < controller_.numberOfRows(category); ++row) {
            const auto cell = controller_.viewForTableColumn(category, column, row);
            found += std::get_if<TextFieldCell>(&cell.control)->text;
        }
        return found;
    }
    [[nodiscard]] std::string paths() const {
        return letters(RuleCategory::commonPath, "commonPathDisplayName");
    }
    [[nodiscard]] std::string others() const { return letters(RuleCategory::others, "OthersDisplayName"); }
};

} // namespace tarnwick::testing
