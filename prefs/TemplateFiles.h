#pragma once

#include "platform/Platform.h"

namespace tarnwick {

class RuleRecord;

/// What happens to a CreateNewFile record's template file after the record has changed. Failures are not
/// examined. A file name that leads out of the template folder or names a folder (one with a slash, "." and
/// "..") is refused.

/// Gives the file the changed record's name; never overwrites.
void moveTemplateFile(const Platform& platform, const RuleRecord& old, const RuleRecord& changed);
void removeTemplateFile(const Platform& platform, const RuleRecord& record);

} // namespace tarnwick
