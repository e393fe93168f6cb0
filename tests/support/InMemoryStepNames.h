#pragma once

#include "editing/StepNames.h"
#include "prefs/RuleList.h"

namespace tarnwick::testing {

/// Names such as "remove TXT", by the stored name of the record.
class InMemoryStepNames final : public StepNames {
public:
    std::string nameOf(StepKind kind, const RuleList& list, std::optional<std::size_t> row) const override {
        static constexpr const char* kinds[]{"add", "remove", "reorder", "rename", "edit note",
            "choose folder", "turn on", "turn off", "show in main menu", "hide from main menu", "enable all",
            "disable all", "reset", "import settings"};
        std::string name = kinds[static_cast<std::size_t>(kind)];
        return row ? name.append(" ").append(list[*row].text(field::displayName)) : name;
    }
};

} // namespace tarnwick::testing
