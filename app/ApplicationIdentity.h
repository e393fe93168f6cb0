#pragma once

#include <string_view>

namespace tarnwick {

/// The one place where the application may be installed.
inline constexpr std::string_view installationPath = "/Applications/Tarnwick.app";
inline constexpr std::string_view serviceIdentifier = "org.halvane.Tarnwick.TarnwickService";
/// The service application, in the folder of the built-in plug-ins.
inline constexpr std::string_view serviceFile = "TarnwickService.service";

} // namespace tarnwick
