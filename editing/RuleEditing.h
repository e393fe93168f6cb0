#pragma once

#include "editing/AddRules.h"
#include "editing/ChoosePath.h"
#include "editing/EditText.h"
#include "editing/ListEditor.h"
#include "editing/RemoveRule.h"
#include "editing/ReorderRules.h"
#include "editing/ResetRules.h"
#include "editing/ToggleRules.h"

namespace tarnwick {

struct Ports;
struct Preferences;
class StepNames;

/// The list editor and the operations on it, wired together.
struct RuleEditing {
    RuleEditing(const Ports& ports, Preferences& preferences, RuleTables& tables, const StepNames& names);
    RuleEditing(const RuleEditing&) = delete;
    RuleEditing& operator=(const RuleEditing&) = delete;

    ListEditor editor;
    AddRules adding;
    RemoveRule removing;
    ResetRules resetting;
    ToggleRules toggling;
    ReorderRules reordering;
    EditText textEditing;
    ChoosePath pathChoosing;
};

} // namespace tarnwick
