#include "editing/RuleEditing.h"

#include "platform/Ports.h"
#include "prefs/Preferences.h"

namespace tarnwick {

RuleEditing::RuleEditing(
    const Ports& ports, Preferences& preferences, RuleTables& tables, const StepNames& names)
    : editor(preferences.lists, preferences.local, preferences.publisher, preferences.factory,
          preferences.templateFiles, tables, ports.undoHistory, names),
      adding(ports.panels, ports.images, ports.folders, ports.bundle, preferences.local,
          preferences.templateFiles, editor, tables),
      removing(editor, tables), resetting(editor), toggling(preferences.local, editor),
      reordering(editor, tables), textEditing(editor),
      pathChoosing(ports.panels, ports.folders, ports.bundle, editor) {}

} // namespace tarnwick
