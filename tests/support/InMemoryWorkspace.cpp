#include "tests/support/InMemoryWorkspace.h"

namespace tarnwick::testing {

std::optional<std::string> InMemoryWorkspace::applicationPath(std::string_view bundleIdentifier) const {
    const auto found = applications.find(bundleIdentifier);
    return found == applications.end() ? std::nullopt : std::optional(found->second);
}

RegisteredApplications InMemoryWorkspace::registeredApplications(std::string_view bundleIdentifier) const {
    const auto found = registered.find(bundleIdentifier);
    return found == registered.end() ? RegisteredApplications{} : found->second;
}

} // namespace tarnwick::testing
