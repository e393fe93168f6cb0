#include "editing/ListEditor.h"

#include "editing/RuleTables.h"
#include "prefs/FactoryLists.h"
#include "prefs/GroupContainer.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RuleList.h"
#include "prefs/RulePublisher.h"

#include <utility>

namespace tarnwick {

/// What follows once a list is changed in memory. Storing leaves it to the platform when the list reaches the
/// disk.
enum class ListEditor::Step { store, synchronise, files, reload, deselect, disableRemoving, publish };

struct ListEditor::Orders {
    static constexpr Step replaced[]{
        Step::store, Step::synchronise, Step::reload, Step::publish, Step::files};
    static constexpr Step appended[]{
        Step::store, Step::files, Step::synchronise, Step::reload, Step::publish};
    static constexpr Step removed[]{Step::store, Step::synchronise, Step::reload, Step::files};
    static constexpr Step moved[]{Step::store, Step::publish, Step::reload, Step::deselect};
    static constexpr Step assigned[]{Step::reload, Step::store, Step::publish};
    /// The factory has stored its list, and laid out its files.
    static constexpr Step reset[]{Step::reload, Step::disableRemoving, Step::publish};
};

const RuleList& ListEditor::list(RuleCategory category) const {
    return lists_[category];
}

void ListEditor::endEditing() {
    tables_.endEditing();
}

void ListEditor::replace(RuleCategory category, std::size_t index, RuleRecord record) {
    auto records = lists_[category].records();
    TemplateWork files;
    if (factsOf(category).hasTemplateFiles) {
        TemplateMoved moved{templateFileName(records[index]), templateFileName(record)};
        if (moved.from != moved.to) {
            files = std::move(moved);
        }
    }
    records[index] = std::move(record);
    commit(category, std::move(records), files, Orders::replaced);
}

void ListEditor::append(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files) {
    auto all = lists_[category].records();
    all.insert(all.end(), std::make_move_iterator(records.begin()), std::make_move_iterator(records.end()));
    // What was copied in is noted already.
    lists_[category].assign(std::move(all));
    run(category, files, Orders::appended);
}

void ListEditor::remove(RuleCategory category, std::size_t index) {
    auto records = lists_[category].records();
    const auto place = records.begin() + static_cast<std::ptrdiff_t>(index);
    TemplateWork files;
    if (factsOf(category).hasTemplateFiles) {
        files = TemplateRemoved{templateFileName(*place)};
    }
    records.erase(place);
    commit(category, std::move(records), files, Orders::removed);
}

void ListEditor::move(RuleCategory category, std::size_t from, std::size_t to) {
    auto records = lists_[category].records();
    const auto place = [&](std::size_t index) {
        return records.begin() + static_cast<std::ptrdiff_t>(index);
    };
    auto record = std::move(records[from]);
    records.erase(place(from));
    records.insert(place(to), std::move(record));
    commit(category, std::move(records), {}, Orders::moved);
}

void ListEditor::assign(RuleCategory category, std::vector<RuleRecord> records) {
    commit(category, std::move(records), {}, Orders::assigned);
}

void ListEditor::reset(RuleCategory category) {
    factory_.reset(category);
    run(category, {}, Orders::reset);
}

void ListEditor::publish(RuleCategory category) {
    publisher_.publish(category);
}

void ListEditor::commit(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files,
    std::span<const Step> order) {
    lists_[category].assign(std::move(records));
    templateFiles_.begin(files);
    run(category, files, order);
}

void ListEditor::run(RuleCategory category, const TemplateWork& files, std::span<const Step> order) {
    for (const auto step : order) {
        perform(step, category, files);
    }
}

void ListEditor::perform(Step step, RuleCategory category, const TemplateWork& files) {
    switch (step) {
    case Step::store:
        local_.store(lists_[category]);
        break;
    case Step::synchronise:
        local_.synchronize();
        break;
    case Step::files:
        templateFiles_.finish(files, lists_[category]);
        break;
    case Step::reload:
        tables_.reload(category);
        break;
    case Step::deselect:
        tables_.deselectAll(category);
        break;
    case Step::disableRemoving:
        tables_.setRemoveButtonEnabled(category, false);
        break;
    case Step::publish:
        publisher_.publish(category);
        break;
    }
}

} // namespace tarnwick
