#pragma once

#include "editing/ListStep.h"
#include "editing/StepNames.h"
#include "editing/UndoSteps.h"
#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"
#include "prefs/TemplateWork.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

class FactoryLists;
class LocalPreferences;
class RuleList;
class RuleLists;
class RulePublisher;
class RuleTables;
class TemplateFiles;
class UndoHistory;

/// The only code that changes a list once it is loaded. Each method is one change: it puts the list, and what
/// has to happen to template files, in place and then has the effects that belong to that kind of change, in
/// their order (see the orders at the head of ListEditor.cpp). Indexes must be in range.
///
/// Each change becomes a step that the user can take back, named after the record as it was shown before;
/// one that changed no record and no file becomes none. Going back and forth has the effects of an edited
/// row, whatever those of the change were, and selects the row concerned. It moves files only where the
/// change had moved them. What leads back and forth is kept in memory and in `HeldFiles` alone, until the
/// process ends; a change that took a template file for good is final (`UndoSteps::recordFinal`).
class ListEditor {
public:
    ListEditor(RuleLists& lists, LocalPreferences& local, RulePublisher& publisher, FactoryLists& factory,
        TemplateFiles& templateFiles, RuleTables& tables, UndoHistory& history, const StepNames& names)
        : lists_(lists), local_(local), publisher_(publisher), factory_(factory),
          templateFiles_(templateFiles), tables_(tables), names_(names), steps_(history) {}

    [[nodiscard]] const RuleList& list(RuleCategory category) const;

    /// Ends an edit in progress, whose text then reaches the record of its own row. Whatever changes a list
    /// for another reason does this first of all: afterwards rows may stand elsewhere.
    void endEditing();

    /// Who is told once a change has had all its effects.
    void onChange(std::function<void(RuleCategory)> handler) { changed_ = std::move(handler); }

    /// Another record in the same place; a template file gets the new record's name.
    void replace(RuleCategory category, std::size_t index, RuleRecord record, StepKind kind);
    /// `files` is what was copied in for the records.
    void append(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files);
    /// Takes the record out, with its template file; neither selects another row nor publishes.
    void remove(RuleCategory category, std::size_t index);
    /// Takes the record at `from` out and puts it at `to` of what is left.
    void move(RuleCategory category, std::size_t from, std::size_t to);
    /// All records anew, and nothing of their files.
    void assign(RuleCategory category, std::vector<RuleRecord> records, StepKind kind);
    /// Another list with its template files, in the order of effects of an edited row.
    void replaceAll(
        RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files, StepKind kind);
    /// Back to the factory list; a list that has none, or cannot be built, stays as it is.
    void reset(RuleCategory category);

    /// Publishes without a change.
    void publish(RuleCategory category);

    /// From now on this is told of each list that a step brings back, before the row concerned is selected.
    void whenTakenBack(std::function<void(RuleCategory)> show) { showTakenBack_ = std::move(show); }

    /// For a step of several changes (`UndoSteps::Group`), or of more than changes of lists.
    [[nodiscard]] UndoSteps& steps() { return steps_; }

private:
    enum class Step;
    struct Orders;

    void commit(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files,
        std::span<const Step> order, const StepFacts& step);
    /// Gives the work that leads back; nothing when none does.
    std::optional<TemplateWork> run(
        RuleCategory category, const TemplateWork& files, std::span<const Step> order);
    void remember(RuleCategory category, const std::vector<RuleRecord>& before,
        const std::optional<TemplateWork>& filesBack, const StepFacts& step);
    void takeBack(const ListStep& step);
    void select(RuleCategory category, std::optional<std::size_t> row);
    [[nodiscard]] StepFacts stepOf(
        StepKind kind, RuleCategory category, std::optional<std::size_t> row = std::nullopt) const;

    void perform(Step step, RuleCategory category);

    RuleLists& lists_;
    LocalPreferences& local_;
    RulePublisher& publisher_;
    FactoryLists& factory_;
    TemplateFiles& templateFiles_;
    RuleTables& tables_;
    const StepNames& names_;
    UndoSteps steps_;
    std::function<void(RuleCategory)> showTakenBack_;
    std::function<void(RuleCategory)> changed_ = [](RuleCategory) {};
};

} // namespace tarnwick
