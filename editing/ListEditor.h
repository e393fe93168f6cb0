#pragma once

#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"
#include "prefs/TemplateFiles.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tarnwick {

class FactoryLists;
class LocalPreferences;
class RuleList;
class RuleLists;
class RulePublisher;
class RuleTables;

/// The only code that changes a list once it is loaded. Each method is one change: it puts the list, and what
/// has to happen to template files, in place and then has the effects that belong to that kind of change, in
/// their order (see the orders at the head of ListEditor.cpp). Indexes must be in range.
class ListEditor {
public:
    ListEditor(RuleLists& lists, LocalPreferences& local, RulePublisher& publisher, FactoryLists& factory,
        TemplateFiles& templateFiles, RuleTables& tables)
        : lists_(lists), local_(local), publisher_(publisher), factory_(factory),
          templateFiles_(templateFiles), tables_(tables) {}

    [[nodiscard]] const RuleList& list(RuleCategory category) const;

    /// Ends an edit in progress, whose text then reaches the record of its own row. Whatever changes a list
    /// for another reason does this first of all: afterwards rows may stand elsewhere.
    void endEditing();

    /// Another record in the same place; a template file gets the new record's name.
    void replace(RuleCategory category, std::size_t index, RuleRecord record);
    /// `files` is what was copied in for the records.
    void append(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files);
    /// Takes the record out, with its template file; neither selects another row nor publishes.
    void remove(RuleCategory category, std::size_t index);
    /// Takes the record at `from` out and puts it at `to` of what is left.
    void move(RuleCategory category, std::size_t from, std::size_t to);
    /// All records anew.
    void assign(RuleCategory category, std::vector<RuleRecord> records);
    /// Back to the factory list; a list that has none, or cannot be built, stays as it is.
    void reset(RuleCategory category);

    /// Publishes without a change.
    void publish(RuleCategory category);

private:
    enum class Step;
    struct Orders;

    void commit(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files,
        std::span<const Step> order);
    void run(RuleCategory category, const TemplateWork& files, std::span<const Step> order);
    void perform(Step step, RuleCategory category, const TemplateWork& files);

    RuleLists& lists_;
    LocalPreferences& local_;
    RulePublisher& publisher_;
    FactoryLists& factory_;
    TemplateFiles& templateFiles_;
    RuleTables& tables_;
};

} // namespace tarnwick
