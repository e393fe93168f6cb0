#include "adapters/foundation/Clocks.h"

#include <chrono>
#include <ctime>

namespace tarnwick {
namespace {

using Seconds = std::chrono::duration<double>;

} // namespace

double steadySeconds() {
    return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

PlistDate dateNow() {
    // From 1970 to 2001.
    constexpr Seconds referenceDate(978'307'200);
    const Seconds since1970 = std::chrono::system_clock::now().time_since_epoch();
    return {(since1970 - referenceDate).count()};
}

std::string localDay() {
    const auto seconds = std::time(nullptr);
    std::tm local{};
    char text[sizeof "2001-12-31"];
    localtime_r(&seconds, &local);
    return std::strftime(text, sizeof text, "%Y-%m-%d", &local) > 0 ? text : "";
}

} // namespace tarnwick
