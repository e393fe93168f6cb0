// The flag rule, against a second implementation of it.

#include "prefs/RuleRecord.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/Require.h"

#include <string>

namespace {

using namespace tarnwick;

/// Character by character: white space, one sign, zeros, then the character that decides.
bool isTrueText(const std::string& text) {
    enum class Expecting { space, zero } state = Expecting::space;
    for (const auto character : text) {
        if (state == Expecting::space) {
            if (character == ' ' || (character >= '\t' && character <= '\r')) {
                continue;
            }
            state = Expecting::zero;
            if (character == '+' || character == '-') {
                continue;
            }
        }
        if (character == '0') {
            continue;
        }
        return (character >= '1' && character <= '9') || character == 'Y' || character == 'y' ||
               character == 'T' || character == 't';
    }
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string whole(bytes, bytes + size);
    fuzz::require(flagValue(PlistValue(whole)) == isTrueText(whole), "a text is true by the rule");

    fuzz::FuzzInput input(bytes, size);
    const auto value = input.value();
    const auto flag = flagValue(value);
    const auto kind = value.kind();
    const bool hasFlag = kind == PlistValue::Kind::string || kind == PlistValue::Kind::integer ||
                         kind == PlistValue::Kind::real || kind == PlistValue::Kind::boolean;
    fuzz::require(flag.has_value() == hasFlag, "texts, numbers and booleans have a flag, others have none");
    if (const auto* number = value.integer()) {
        fuzz::require(flag == (*number != 0), "a number is true when it is not zero");
    }
    const RuleRecord record(PlistDictionary{{"enable", value}});
    fuzz::require(record.isEnabled() == flag.value_or(false), "a record reads its field by the rule");
    fuzz::require(!RuleRecord().isEnabled(), "a missing field is false");
    return 0;
}
