#include "editing/ListEditor.h"

#include "editing/RuleTables.h"
#include "prefs/FactoryLists.h"
#include "prefs/GroupContainer.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RuleList.h"
#include "prefs/RulePublisher.h"
#include "prefs/TemplateFiles.h"

#include <memory>
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
    /// An edited row's effects, with the files in their places by the time that rows show their icons.
    static constexpr Step takenBack[]{
        Step::store, Step::synchronise, Step::files, Step::reload, Step::publish};
};

const RuleList& ListEditor::list(RuleCategory category) const {
    return lists_[category];
}

void ListEditor::endEditing() {
    tables_.endEditing();
}

void ListEditor::replace(RuleCategory category, std::size_t index, RuleRecord record, StepKind kind) {
    const auto step = stepOf(kind, category, index);
    auto records = lists_[category].records();
    TemplateWork files;
    if (factsOf(category).hasTemplateFiles) {
        TemplateMoved moved{templateFileName(records[index]), templateFileName(record)};
        if (moved.from != moved.to) {
            files = std::move(moved);
        }
    }
    records[index] = std::move(record);
    commit(category, std::move(records), files, Orders::replaced, step);
}

void ListEditor::append(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files) {
    auto& list = lists_[category];
    const auto first = list.size();
    const auto isOne = records.size() == 1;
    auto all = list.records();
    all.insert(all.end(), std::make_move_iterator(records.begin()), std::make_move_iterator(records.end()));
    const auto before = list.exchange(std::move(all));
    auto step = stepOf(StepKind::add, category, isOne ? std::optional(first) : std::nullopt);
    step.rowBefore = first > 0 ? std::optional(first - 1) : std::nullopt;
    step.rowAfter = first;
    // What was copied in is noted already.
    const auto filesBack = run(category, files, Orders::appended);
    remember(category, before, filesBack, step);
}

void ListEditor::remove(RuleCategory category, std::size_t index) {
    auto step = stepOf(StepKind::remove, category, index);
    step.rowAfter = index > 0 ? index - 1 : 0;
    auto records = lists_[category].records();
    const auto place = records.begin() + static_cast<std::ptrdiff_t>(index);
    TemplateWork files;
    if (factsOf(category).hasTemplateFiles) {
        files = TemplatesRemoved{{templateFileName(*place)}};
    }
    records.erase(place);
    commit(category, std::move(records), files, Orders::removed, step);
}

void ListEditor::move(RuleCategory category, std::size_t from, std::size_t to) {
    auto step = stepOf(StepKind::reorder, category, from);
    step.rowAfter = to;
    auto records = lists_[category].records();
    const auto place = [&](std::size_t index) {
        return records.begin() + static_cast<std::ptrdiff_t>(index);
    };
    auto record = std::move(records[from]);
    records.erase(place(from));
    records.insert(place(to), std::move(record));
    commit(category, std::move(records), {}, Orders::moved, step);
}

void ListEditor::assign(RuleCategory category, std::vector<RuleRecord> records, StepKind kind) {
    commit(category, std::move(records), {}, Orders::assigned, stepOf(kind, category));
}

void ListEditor::replaceAll(
    RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files, StepKind kind) {
    commit(category, std::move(records), files, Orders::takenBack, stepOf(kind, category));
}

void ListEditor::reset(RuleCategory category) {
    const auto step = stepOf(StepKind::reset, category);
    const auto before = lists_[category].records();
    const auto filesBack = factory_.reset(category);
    run(category, {}, Orders::reset);
    remember(category, before, filesBack, step);
}

void ListEditor::publish(RuleCategory category) {
    publisher_.publish(category);
}

void ListEditor::commit(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files,
    std::span<const Step> order, const StepFacts& step) {
    auto& list = lists_[category];
    const auto before = list.exchange(std::move(records));
    templateFiles_.begin(files, list);
    const auto filesBack = run(category, files, order);
    remember(category, before, filesBack, step);
}

std::optional<TemplateWork> ListEditor::run(
    RuleCategory category, const TemplateWork& files, std::span<const Step> order) {
    std::optional<TemplateWork> filesBack = TemplateWork();
    for (const auto step : order) {
        if (step == Step::files) {
            filesBack = templateFiles_.finish(files, lists_[category]);
        } else {
            perform(step, category);
        }
    }
    changed_(category);
    return filesBack;
}

void ListEditor::remember(RuleCategory category, const std::vector<RuleRecord>& before,
    const std::optional<TemplateWork>& filesBack, const StepFacts& step) {
    ListChange change(lists_[category].records(), before);
    if (filesBack && change.isEmpty() && std::holds_alternative<std::monostate>(*filesBack)) {
        return;
    }
    auto part = std::make_shared<ListStep>(
        category, std::move(change), filesBack.value_or(TemplateWork()),
        StepFacts{step.name, step.rowAfter, step.rowBefore, step.replacesList},
        [ this, category ]() -> const auto& { return lists_[category].records(); },
        [this](const ListStep& back) { takeBack(back); });
    if (filesBack) {
        steps_.record(step.name, std::move(part));
    } else {
        steps_.recordFinal(std::move(part));
    }
}

void ListEditor::takeBack(const ListStep& step) {
    const auto category = step.category();
    commit(category, step.back().applied(lists_[category].records()), step.files(), Orders::takenBack,
        step.facts());
    if (showTakenBack_) {
        showTakenBack_(category);
    }
    select(category, step.facts().rowAfter);
}

void ListEditor::select(RuleCategory category, std::optional<std::size_t> row) {
    if (row) {
        tables_.selectRow(category, static_cast<long>(*row));
    }
    tables_.setRemoveButtonEnabled(category, lists_[category].canRemove(tables_.selectedRow(category)));
}

StepFacts ListEditor::stepOf(StepKind kind, RuleCategory category, std::optional<std::size_t> row) const {
    const auto replacesList = kind == StepKind::reset || kind == StepKind::importSettings;
    return {names_.nameOf(kind, lists_[category], row), row, row, replacesList};
}

void ListEditor::perform(Step step, RuleCategory category) {
    switch (step) {
    case Step::files:
        // Has something to tell; see `run`.
        break;
    case Step::store:
        local_.store(lists_[category]);
        break;
    case Step::synchronise:
        local_.synchronize();
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
