#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarnwick {

void PrintTo(RuleCategory category, std::ostream* stream) {
    constexpr std::string_view prefix = "arrOf";
    *stream << factsOf(category).listKey.substr(prefix.size());
}

void PrintTo(const PlistValue& value, std::ostream* stream) {
    const auto print = [stream](const PlistValue& part) { PrintTo(part, stream); };
    if (const auto* dictionary = value.dictionary()) {
        *stream << "{";
        for (const auto& [key, part] : *dictionary) {
            *stream << key << " = ";
            print(part);
            *stream << "; ";
        }
        *stream << "}";
    } else if (const auto* array = value.array()) {
        *stream << "(";
        for (const auto& part : *array) {
            print(part);
            *stream << ", ";
        }
        *stream << ")";
    } else if (const auto* text = value.string()) {
        *stream << ::testing::PrintToString(*text);
    } else if (const auto* integer = value.integer()) {
        *stream << *integer;
    } else if (const auto* large = value.largeInteger()) {
        *stream << large->number;
    } else if (const auto* real = value.real()) {
        *stream << "real " << *real;
    } else if (const auto* flag = value.boolean()) {
        *stream << (*flag ? "true" : "false");
    } else if (const auto* date = value.date()) {
        *stream << "date " << date->secondsSinceReferenceDate;
    } else {
        *stream << value.data()->size() << " bytes";
    }
}

} // namespace tarnwick
