#pragma once

#include "tests/support/EditingFixture.h"

namespace tarnwick::testing {

/// Lists of records that are each named by a letter, so that an order is a word.
class LetterListTest : public EditingFixture {
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
    /// The names in the list, one after the other.
    [[nodiscard]] std::string letters(RuleCategory category) {
        std::string found;
        for (const auto& record : list(category)) {
            found += record.text(field::displayName);
        }
        return found;
    }
    [[nodiscard]] std::string paths() { return letters(RuleCategory::commonPath); }
    [[nodiscard]] std::string others() { return letters(RuleCategory::others); }
};

} // namespace tarnwick::testing
