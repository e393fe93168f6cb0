#include "editing/RulePages.h"

#include "prefs/LocalPreferences.h"
#include "prefs/RulePublisher.h"

namespace tarnwick {

void RulePages::endEditing() {
    if (rowEditing_) {
        rowEditing_->end();
    }
}

void RulePages::store(RuleCategory category) {
    local_.store(lists_[category]);
}

void RulePages::storeAndSynchronize(RuleCategory category) {
    local_.storeAndSynchronize(lists_[category]);
}

void RulePages::publish(RuleCategory category) {
    publisher_.publish(category);
}

void RulePages::reload(RuleCategory category) {
    if (auto* table = this->table(category)) {
        table->reloadData();
    }
}

long RulePages::selectedRow(RuleCategory category) const {
    const auto* table = this->table(category);
    return table ? table->selectedRow() : -1;
}

long RulePages::numberOfRows(RuleCategory category) const {
    const auto* table = this->table(category);
    return table ? table->numberOfRows() : 0;
}

void RulePages::selectRow(RuleCategory category, long row) {
    if (auto* table = this->table(category)) {
        table->selectRow(row);
    }
}

void RulePages::deselectAll(RuleCategory category) {
    if (auto* table = this->table(category)) {
        table->deselectAll();
    }
}

void RulePages::setRemoveButtonEnabled(RuleCategory category, bool enabled) {
    if (auto* button = removeButtons_[static_cast<std::size_t>(category)]) {
        button->setEnabled(enabled);
    }
}

} // namespace tarnwick
