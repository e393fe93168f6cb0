#pragma once

#include "tests/model/RuleModel.h"

#include <cstdint>
#include <string>

namespace tarnwick::soak {

/// CRC-32 as zlib and Python compute it.
[[nodiscard]] std::uint32_t checksum(const std::uint8_t* bytes, std::size_t size);

/// One text for one list, however it is stored: the kind and content of every field of every record, pictures
/// by their checksum. The checker forms the same text with a reader of its own.
[[nodiscard]] std::string canonical(const testing::RuleModel::Records& records, bool enabledOnly);

} // namespace tarnwick::soak
