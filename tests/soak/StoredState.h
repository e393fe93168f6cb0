#pragma once

#include "tests/model/RuleModel.h"

#include <string>

namespace tarnwick::soak {

/// What a launch over the sandbox's stores has in its lists and in its template folder, by the rules of the
/// tests. The factory's lists are those of "factory.plist" in the sandbox; without it they are empty.
[[nodiscard]] testing::RuleModel stateOf(const std::string& sandbox);

} // namespace tarnwick::soak
