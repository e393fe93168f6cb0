#pragma once

#include "transfer/ImportPlan.h"

#include <variant>

namespace tarnwick {

class Images;

/// What a document (see SettingsDocument.h) asks for, or why it asks for nothing. Looks at all of it, changes
/// nothing, and knows no document by anything but its contents.
[[nodiscard]] std::variant<ImportPlan, ImportFault> understandSettings(
    const PlistValue& document, Images& images);

} // namespace tarnwick
