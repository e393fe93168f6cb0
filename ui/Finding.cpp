#include "ui/Finding.h"

#include "editing/ListEditor.h"
#include "platform/ApplicationBundle.h"
#include "ui/CountText.h"
#include "ui/NumberText.h"
#include "ui/SettingsWindow.h"

namespace tarnwick {
namespace {

constexpr CountTexts foundTexts{"Not found", "%@ found: one", "%@ found: several"};

} // namespace

bool Finding::typed(RuleCategory category, std::string_view characters, double seconds) {
    const auto answer = typeSelect_.type(category, window_.selectedRow(category), characters, seconds);
    select(category, answer.row);
    return answer.isTaken;
}

bool Finding::erased(RuleCategory category, double seconds) {
    const auto answer = typeSelect_.erase(category, window_.selectedRow(category), seconds);
    select(category, answer.row);
    return answer.isTaken;
}

void Finding::lookFor(RuleCategory category, std::string_view text) {
    editor_.endEditing();
    search_.lookFor(text);
    select(category, search_.find(category, window_.selectedRow(category), SearchStep::here));
}

void Finding::step(RuleCategory category, SearchStep step) {
    editor_.endEditing();
    select(category, search_.find(category, window_.selectedRow(category), step));
}

void Finding::select(RuleCategory category, std::optional<long> row) {
    if (row) {
        window_.selectRow(category, *row);
    }
}

std::string Finding::count(RuleCategory category) const {
    if (!search_.hasText()) {
        return {};
    }
    const auto count = search_.count(category, window_.selectedRow(category));
    const auto all = numberText(bundle_, count.all);
    if (count.place > 0) {
        return filled(bundle_.localized("%1$@ of %2$@ found"), {numberText(bundle_, count.place), all});
    }
    return filled(bundle_.localized(foundTexts.formFor(count.all)), {all});
}

} // namespace tarnwick
