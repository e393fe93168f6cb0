#include "transfer/ImportSettings.h"

#include "editing/ListEditor.h"
#include "editing/RuleTables.h"
#include "editing/StepNames.h"
#include "platform/FileContents.h"
#include "prefs/HeldFiles.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RuleList.h"
#include "transfer/SettingsDocument.h"

#include <utility>

namespace tarnwick {

bool ImportSettings::apply(const ImportPlan& plan) {
    const auto place = held_.newPlace();
    if (!place || !contents_.writeTree(*place, PlistValue(plan.templateFiles))) {
        return false;
    }
    const UndoSteps::Group step(editor_.steps(), stepName());
    setSwitches(plan.switches);
    for (const auto category : allRuleCategories) {
        const auto files =
            factsOf(category).hasTemplateFiles ? TemplateWork(TemplateFolderPutBack{*place}) : TemplateWork();
        editor_.replaceAll(category, plan.lists[category], files, StepKind::importSettings);
        tables_.deselectAll(category);
        tables_.setRemoveButtonEnabled(category, false);
    }
    return true;
}

void ImportSettings::setSwitches(const PlistDictionary& switches) {
    auto before = storedSwitches();
    for (const auto key : optionSwitches()) {
        const auto wanted = switches.find(key);
        const auto stored = before.find(key);
        if (wanted == switches.end()) {
            if (stored != before.end()) {
                local_.remove(key);
            }
        } else if (stored == before.end() || !(stored->second == wanted->second)) {
            local_.set(key, wanted->second);
        }
    }
    if (before != storedSwitches()) {
        editor_.steps().record(stepName(), [this, before = std::move(before)] { setSwitches(before); });
    }
}

PlistDictionary ImportSettings::storedSwitches() const {
    PlistDictionary stored;
    for (const auto key : optionSwitches()) {
        if (auto value = local_.value(key)) {
            stored.emplace(key, *std::move(value));
        }
    }
    return stored;
}

std::string ImportSettings::stepName() const {
    return names_.nameOf(StepKind::importSettings, editor_.list(RuleCategory::createNewFile), std::nullopt);
}

} // namespace tarnwick
