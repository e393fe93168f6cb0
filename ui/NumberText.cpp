#include "ui/NumberText.h"

#include "platform/ApplicationBundle.h"
#include "ui/CountText.h"

namespace tarnwick {

std::string numberText(const ApplicationBundle& bundle, std::size_t number) {
    constexpr std::size_t thousand = 1000;
    if (number < thousand) {
        return std::to_string(number);
    }
    // The last group with its zeros.
    const auto group = std::to_string(thousand + number % thousand).substr(1);
    return filled(bundle.localized("%1$@,%2$@"), {numberText(bundle, number / thousand), group});
}

} // namespace tarnwick
