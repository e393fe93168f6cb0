#pragma once

#include <string_view>

namespace tarnwick {

/// The fixed addresses that the window opens in the default browser.
namespace link {
inline constexpr std::string_view helpRestartFinder =
    "https://tarnwick.halvane.example/help/restart-finder.html";
inline constexpr std::string_view helpServices = "https://tarnwick.halvane.example/help/services.html";
inline constexpr std::string_view systemPreferences = "x-apple.systempreferences://";
inline constexpr std::string_view allbright = "https://halvane.example/store/allbright";
inline constexpr std::string_view snapfin = "https://halvane.example/store/snapfin";
inline constexpr std::string_view website = "https://halvane.example/";
} // namespace link

/// The sibling application whose running instance makes the window offer a Finder restart.
inline constexpr std::string_view siblingApplication = "org.halvane.Allbright";

} // namespace tarnwick
