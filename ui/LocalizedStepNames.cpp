#include "ui/LocalizedStepNames.h"

#include "platform/ApplicationBundle.h"
#include "ui/CountText.h"
#include "ui/NumberText.h"
#include "ui/ShortenedText.h"

#include <string_view>

namespace tarnwick {
namespace {

/// More would make the menu wider than what it names.
constexpr std::size_t longestName = 40;

std::string_view formatOf(StepKind kind, bool isNamed) {
    switch (kind) {
    case StepKind::add:
        return isNamed ? "Add \u201C%@\u201D" : "Add Several Rules";
    case StepKind::remove:
        return "Remove \u201C%@\u201D";
    case StepKind::reorder:
        return "Move \u201C%@\u201D";
    case StepKind::rename:
        return "Rename \u201C%@\u201D";
    case StepKind::editNote:
        return "Edit Note of \u201C%@\u201D";
    case StepKind::chooseFolder:
        return "Choose Folder for \u201C%@\u201D";
    case StepKind::turnOn:
        return "Turn On \u201C%@\u201D";
    case StepKind::turnOff:
        return "Turn Off \u201C%@\u201D";
    case StepKind::showInMainMenu:
        return "Show \u201C%@\u201D in Main Menu";
    case StepKind::hideFromMainMenu:
        return "Hide \u201C%@\u201D from Main Menu";
    case StepKind::enableAll:
        return "Enable All";
    case StepKind::disableAll:
        return "Disable All";
    case StepKind::reset:
        return "Reset List";
    case StepKind::importSettings:
        return "Import of Settings";
    }
    return {};
}

} // namespace

std::string LocalizedStepNames::nameOf(
    StepKind kind, const RuleList& list, std::optional<std::size_t> row) const {
    auto format = bundle_.localized(formatOf(kind, row.has_value()));
    if (!row) {
        return format;
    }
    const auto name = cells_.shownName(list, *row);
    return filled(format, {name.empty() ? filled(bundle_.localized("row %@"), {numberText(bundle_, *row + 1)})
                                        : shortened(name, longestName)});
}

} // namespace tarnwick
