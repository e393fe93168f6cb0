#include "integration/TerminalService.h"

namespace tarnwick {
namespace {

std::string shown(const std::optional<std::string>& value) {
    return value.value_or("(null)");
}

} // namespace

std::string TerminalService::description() const {
    return "<TerminalService: self.applicationName=" + shown(applicationName) +
           ", self.serviceDescription=" + shown(serviceDescription) +
           ", self.serviceName=" + shown(serviceName) + ", self.identifier=" + shown(identifier) + ">";
}

} // namespace tarnwick
