#include "prefs/RuleRecord.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 3> fixedActions{
    "Change to QR Code", "Translate by Google", "Translate by Baidu"};

// The mark after "Pin" is the ideographic comma, U+3001.
constexpr std::array<std::string_view, 2> screenshotActions{
    "Pin\u3001Annotation by Snapfin", "Screenshots by Snapfin"};

template <std::size_t size>
bool contains(const std::array<std::string_view, size>& actions, std::string_view action) {
    return std::find(actions.begin(), actions.end(), action) != actions.end();
}

bool textIsTrue(std::string_view text) {
    const auto start = text.find_first_not_of(" \t\n\v\f\r");
    if (start == std::string_view::npos) {
        return false;
    }
    text.remove_prefix(start);
    if (text.front() == '+' || text.front() == '-') {
        text.remove_prefix(1);
    }
    const auto first = text.find_first_not_of('0');
    if (first == std::string_view::npos) {
        return false;
    }
    return std::string_view("123456789YyTt").find(text[first]) != std::string_view::npos;
}

} // namespace

std::optional<bool> flagValue(const PlistValue& value) {
    if (const auto* flag = value.boolean()) {
        return *flag;
    }
    if (const auto* number = value.integer()) {
        return *number != 0;
    }
    if (const auto* number = value.real()) {
        return *number != 0;
    }
    if (value.largeInteger()) {
        return true;
    }
    if (const auto* text = value.string()) {
        return textIsTrue(*text);
    }
    return std::nullopt;
}

bool RuleRecord::flag(std::string_view key) const {
    const auto* stored = value(key);
    return stored && flagValue(*stored).value_or(false);
}

std::string_view RuleRecord::text(std::string_view key) const {
    const auto* stored = value(key);
    const auto* text = stored ? stored->string() : nullptr;
    return text ? std::string_view(*text) : std::string_view();
}

PlistData RuleRecord::data(std::string_view key) const {
    const auto* stored = value(key);
    const auto* data = stored ? stored->data() : nullptr;
    return data ? *data : PlistData();
}

const PlistValue* RuleRecord::value(std::string_view key) const {
    const auto found = fields_->find(key);
    return found == fields_->end() ? nullptr : &found->second;
}

RuleRecord RuleRecord::with(std::string_view key, PlistValue value) const {
    PlistDictionary changed = *fields_;
    changed.insert_or_assign(std::string(key), std::move(value));
    return RuleRecord(std::move(changed));
}

RuleRecord RuleRecord::without(std::string_view key) const {
    PlistDictionary changed = *fields_;
    if (const auto found = changed.find(key); found != changed.end()) {
        changed.erase(found);
    }
    return RuleRecord(std::move(changed));
}

std::optional<std::string> RuleRecord::onlyDifference(const RuleRecord& other) const {
    std::optional<std::string> difference;
    auto mine = fields_->begin();
    auto others = other.fields_->begin();
    while (mine != fields_->end() || others != other.fields_->end()) {
        const auto isMineAlone =
            others == other.fields_->end() || (mine != fields_->end() && mine->first < others->first);
        const auto isOthersAlone = !isMineAlone && (mine == fields_->end() || others->first < mine->first);
        if (isMineAlone || isOthersAlone || !(mine->second == others->second)) {
            if (difference) {
                return std::nullopt;
            }
            difference = isOthersAlone ? others->first : mine->first;
        }
        mine = isOthersAlone ? mine : std::next(mine);
        others = isMineAlone ? others : std::next(others);
    }
    return difference;
}

bool RuleRecord::hasFixedAction() const {
    return contains(fixedActions, text(field::action));
}

bool RuleRecord::hasProtectedAction() const {
    return hasFixedAction() || contains(screenshotActions, text(field::action));
}

} // namespace tarnwick
