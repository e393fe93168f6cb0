#pragma once

#include "editing/RuleEditing.h"
#include "tests/support/InMemoryStepNames.h"
#include "tests/support/InMemoryTables.h"
#include "tests/support/PrefsFixture.h"

namespace tarnwick::testing {

/// The operations on the lists over the in-memory platform, with tables that have the lists' rows.
class EditingFixture : public PrefsFixture {
protected:
    EditingFixture() {
        for (const auto category : allRuleCategories) {
            tables_.table(category).rowCount = [this, category] { return rows(category); };
        }
    }

    /// Loads and publishes the lists, as a launch does; then forgets what was logged.
    void launch() {
        load();
        for (const auto category : publishedAtStart) {
            preferences_.publisher.publish(category);
        }
        for (const auto category : allRuleCategories) {
            tables_.reload(category);
        }
        platform_.log.clear();
    }

    [[nodiscard]] long rows(RuleCategory category) { return static_cast<long>(list(category).size()); }

    InMemoryTables tables_{platform_.log};
    InMemoryStepNames stepNames_;
    RuleEditing editing_{platform_.ports(), preferences_, tables_, stepNames_};
};

} // namespace tarnwick::testing
