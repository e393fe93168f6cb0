// Settings files: bytes of any form as one finds them, and values of any kind as they are stored. What can be
// read can be written, and is read as the same again, by Python's reader too.

#include "SettingsReaders.h"
#include "tests/adapters/Pool.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/Require.h"

#include <algorithm>
#include <cmath>
#include <regex>
#include <string>

namespace {

using namespace tarnwick;
using namespace tarnwick::fuzz;

/// What the toolkit's reader takes for something else than XML says: its own escapes are none, unparsed text
/// and byte order marks in texts are left out, hexadecimal numbers are 0, integers beyond 2^63 - 1 are that
/// one, and any instruction at the start is a declaration.
bool isMisreadByToolkit(const std::string& bytes) {
    static const std::regex misread("\\\\U|<!\\[CDATA\\[|\xEF\xBB\xBF|0[xX]|[0-9]{19}|\r");
    return bytes.rfind("<?xml ", 0) != 0 || std::regex_search(bytes, misread);
}

/// Where another reader accepts what the layer's does, it must see the same.
void checkAgreement(const std::string& bytes, const Description& ours) {
    require(readByLayer(bytes, Changeable::everything) == ours, "changeable values are the same");
    const auto plistlib = readByPlistlib(bytes);
    require(!ours || !plistlib || ours == plistlib, "plistlib reads the same");
    const auto toolkit = ours && !isMisreadByToolkit(bytes) ? readByToolkit(bytes) : std::nullopt;
    require(!ours || !toolkit || ours == toolkit, "the toolkit reads the same");
}

/// The toolkit has no date that is no number.
bool hasUnknownDate(const PlistValue& value) {
    if (const auto* array = value.array()) {
        return std::any_of(array->begin(), array->end(), hasUnknownDate);
    }
    if (const auto* dictionary = value.dictionary()) {
        return std::any_of(dictionary->begin(), dictionary->end(),
            [](const auto& entry) { return hasUnknownDate(entry.second); });
    }
    return value.date() && std::isnan(value.date()->secondsSinceReferenceDate);
}

void checkWritten(const Written& written, const Description& value) {
    const auto again = readByLayer(written.bytes);
    require(again.has_value(), "what is written can be read");
    require(again == readBySettings(written.bytes), "the settings are read by the layer");
    require(again == readByPlistlib(written.bytes), "what is written is read the same by plistlib");
    require(!written.isExact || again == value, "what is read is what was written");
    const auto twice = writtenAgain(written.bytes);
    require(twice && twice->isExact && twice->bytes == written.bytes, "it is written the same again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const tarnwick::testing::Pool pool;
    if (size == 0) {
        return 0;
    }
    if (bytes[0] == 'V') {
        FuzzInput input(bytes + 1, size - 1);
        const auto value = input.value();
        if (const auto result = hasUnknownDate(value) ? std::nullopt : written(value)) {
            checkWritten(*result, describe(value));
        }
        return 0;
    }
    const std::string file(reinterpret_cast<const char*>(bytes), size);
    checkAgreement(file, readByLayer(file));
    if (const auto result = writtenAgain(file)) {
        checkWritten(*result, readBySettings(file));
    }
    return 0;
}
