#include "ui/RuleFault.h"

#include "platform/ApplicationBundle.h"
#include "ui/CountText.h"
#include "ui/NumberText.h"

#include <algorithm>

namespace tarnwick {
namespace {

/// Keys of the localisation table; the placeholder stands for a number above one.
struct FaultTexts {
    std::string_view explanation;
    std::string_view one;
    std::string_view many;
};

constexpr PerFault<FaultTexts> texts{
    FaultTexts{},
    FaultTexts{"This folder cannot be found. Choose it anew, or remove the rule.", "1 folder cannot be found",
        "%@ folders cannot be found"},
    FaultTexts{"This is a file, not a folder. Choose a folder, or remove the rule.",
        "1 rule leads to a file instead of a folder", "%@ rules lead to files instead of folders"},
    FaultTexts{"No folder has been chosen for this rule yet. Choose one, or remove the rule.",
        "1 rule has no folder yet", "%@ rules have no folder yet"},
    FaultTexts{"The file of this template is missing. Remove the rule and add the file again.",
        "1 template has lost its file", "%@ templates have lost their files"},
    FaultTexts{"This picture cannot be shown. Remove the rule and add the picture again.",
        "1 picture cannot be shown", "%@ pictures cannot be shown"},
};

constexpr std::string_view severalKinds = "Something is wrong with %@ rules";

} // namespace

std::string_view explanationOf(RuleFault fault) {
    return texts[fault].explanation;
}

std::string summaryOf(const FaultCounts& counts, const ApplicationBundle& bundle) {
    std::size_t total = 0;
    std::string_view one;
    std::string_view many;
    for (const auto fault : allRuleFaults) {
        if (fault == RuleFault::none || counts[fault] == 0) {
            continue;
        }
        many = total == 0 ? texts[fault].many : severalKinds;
        one = texts[fault].one;
        total += counts[fault];
    }
    if (total == 0) {
        return {};
    }
    return total == 1 ? bundle.localized(one) : filled(bundle.localized(many), {numberText(bundle, total)});
}

} // namespace tarnwick
