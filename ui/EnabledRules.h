#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

class ApplicationBundle;
class RuleList;

/// What a row's check box for this field of its record shows: the rules of fixed actions are always on. The
/// row must be in range.
[[nodiscard]] bool isShownOn(const RuleList& list, std::size_t row, std::string_view field);

/// What the switch above a table shows. Mixed is for the eye alone: there is no such value, and a click
/// stores on or off.
enum class EnableAllState { off, on, mixed };

/// How many rules of a list are on, as their rows show it.
struct EnabledRules {
    std::size_t on = 0;
    std::size_t all = 0;

    /// Of the list's switch: what is stored for it, but for a list of which some are on and some off.
    [[nodiscard]] EnableAllState state(bool stored) const;
    bool operator==(const EnabledRules&) const = default;
};

[[nodiscard]] EnabledRules enabledRulesOf(const RuleList& list);

/// "9 of 15 on", in the words of the list's page; empty for an empty list and for one without such a switch.
[[nodiscard]] std::string enabledText(const ApplicationBundle& bundle, const RuleList& list);

} // namespace tarnwick
