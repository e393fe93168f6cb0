#include "tests/soak/Canonical.h"

namespace tarnwick::soak {
namespace {

std::string canonical(const PlistValue& value) {
    if (const auto* text = value.string()) {
        return "s" + *text;
    }
    if (const auto* flag = value.boolean()) {
        return *flag ? "b1" : "b0";
    }
    if (const auto* number = value.integer()) {
        return "i" + std::to_string(*number);
    }
    if (const auto* data = value.data()) {
        return "d" + std::to_string(data->size()) + ":" +
               std::to_string(checksum(data->bytes(), data->size()));
    }
    return "?";
}

} // namespace

std::uint32_t checksum(const std::uint8_t* bytes, std::size_t size) {
    std::uint32_t sum = 0xFFFFFFFFU;
    for (std::size_t index = 0; index < size; ++index) {
        sum ^= bytes[index];
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~sum;
}

std::string canonical(const testing::RuleModel::Records& records, bool enabledOnly) {
    std::string text;
    for (const auto& record : records) {
        if (enabledOnly && !testing::isOn(record)) {
            continue;
        }
        for (const auto& [key, value] : record) {
            text += key + "=" + canonical(value) + "\n";
        }
        text += "\n";
    }
    return text;
}

} // namespace tarnwick::soak
