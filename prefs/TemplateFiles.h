#pragma once

#include "platform/Platform.h"

namespace tarnwick {

class RuleRecord;

/// What happens to a CreateNewFile record's template file after the record has changed. Failures are not
/// examined. A file name with a slash is refused, as it would lead out of the template folder.

/// Gives the file the changed record's name; never overwrites.
void moveTemplateFile(const Platform& platform, const RuleRecord& old, const RuleRecord& changed);
void removeTemplateFile(const Platform& platform, const RuleRecord& record);

} // namespace tarnwick
