#include "tests/support/LongList.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick::testing {
namespace {

constexpr std::size_t everyWhichIsOff = 10;
// Names of one length, whatever their number.
constexpr std::size_t firstNumber = 1'000'000;

PlistData makeImage(std::size_t size) {
    // What the in-memory platform takes for a picture.
    std::vector<std::uint8_t> bytes{'t', 'i', 'f', 'f'};
    bytes.resize(std::max(size, bytes.size()));
    return PlistData(std::move(bytes));
}

} // namespace

RuleList makeLongList(std::size_t records, std::size_t imageBytes) {
    const auto image = makeImage(imageBytes);
    std::vector<RuleRecord> list;
    list.reserve(records);
    for (std::size_t index = 0; index < records; ++index) {
        PlistDictionary fields{{"enable", index % everyWhichIsOff == 0 ? 0 : 1}, {"modified", "1"},
            {"displayName", "A picture for folders, number " + std::to_string(firstNumber + index)}};
        if (imageBytes > 0) {
            fields.emplace("icon", image);
        }
        list.emplace_back(std::move(fields));
    }
    return RuleList(RuleCategory::customIcon, std::move(list));
}

} // namespace tarnwick::testing
