#include "tests/fuzz/FuzzInput.h"

#include <array>
#include <limits>
#include <string_view>

namespace tarnwick::fuzz {
namespace {

constexpr std::array<std::string_view, 56> knownTexts{"0", "1", "", "Undefined", "enable", "displayName",
    "extension", "modified", "enableMainMenu", "realPath", "icon", "nameModified", "noteModified", "Action",
    "Note", "arrOfCreateNewFile", "arrOfCopyFilesTo", "arrOfCommonPath", "arrOfCustomIcon", "arrOfOthers",
    "arrOfCreateNewFile.unreadable", "arrOfOthers.unreadable", "arrOfOthers.unreadable.2", "arrOfEnableOther",
    "enableImagetoIcon", "soundTipsOfNewFile", "soundTipsOfSendFilesTo", "enableCopyFilesTo",
    "enableMoveFilesTo", "enableCommonPath", "enableIconOfCreateNewFile", "enableAutoOpenAfterCreateNewFile",
    "newWindowOfOpenInTerminal", "newWindowOfOpenIniTerm2", "deleteDirectlyRequiresConfirmation",
    "disableAutoNameOfCreateNewFile", "enableAllOfCreateNewFiles", "enableAllOfCustomIcon",
    "enableAllOfOthers", "ShownEnableExtensionAlert", "askActionFromTarnwick", "prePathOfCreateNewFile",
    "prePathOfSendFilesTo", "Open in VSCode", "Open in Sublime Text", "Open in Emacs", "Change to QR Code",
    "Translate by Google", "Translate by Baidu", "Pin\u3001Annotation by Snapfin", "TXT", "txt", "Word",
    "/Users/anna/Downloads", "../Outside", "tiff of Cut"};

constexpr std::array<std::string_view, 11> recordFields{"enable", "displayName", "extension", "modified",
    "enableMainMenu", "realPath", "icon", "nameModified", "noteModified", "Action", "Note"};

constexpr std::array<std::int64_t, 6> numbers{
    0, 1, -1, 2, std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()};
constexpr std::array<double, 6> reals{
    0, -0.0, 1, 0.25, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()};

template <class Choices>
auto oneOf(FuzzInput& input, const Choices& choices) {
    return choices[static_cast<std::size_t>(input.pick(static_cast<long>(choices.size())))];
}

PlistData dataOf(const std::string& text) {
    return PlistData({text.begin(), text.end()});
}

} // namespace

std::uint8_t FuzzInput::next() {
    if (left_ == 0) {
        return 0;
    }
    --left_;
    return *bytes_++;
}

long FuzzInput::pick(long below) {
    const auto value = below > 256 ? next() * 256 + next() : next();
    return value % below;
}

std::string FuzzInput::bytes() {
    std::string text(static_cast<std::size_t>(pick(25)), '\0');
    for (auto& character : text) {
        character = static_cast<char>(next());
    }
    return text;
}

std::string FuzzInput::text() {
    return pick(4) == 0 ? bytes() : std::string(oneOf(*this, knownTexts));
}

PlistValue FuzzInput::value(int depth) {
    switch (pick(depth > 0 ? 10 : 8)) {
    case 0:
        return text();
    case 1:
        return bytes();
    case 2:
        return oneOf(*this, numbers);
    case 3:
        return static_cast<std::int64_t>(pick(3));
    case 4:
        return oneOf(*this, reals);
    case 5:
        return pick(2) == 1;
    case 6:
        return PlistDate{oneOf(*this, reals)};
    case 7:
        return dataOf(text());
    case 8: {
        PlistArray array;
        for (auto count = pick(6); count > 0 && !atEnd(); --count) {
            array.push_back(value(depth - 1));
        }
        return array;
    }
    default:
        break;
    }
    PlistDictionary dictionary;
    for (auto count = pick(6); count > 0 && !atEnd(); --count) {
        const auto key = text();
        dictionary.insert_or_assign(key, value(depth - 1));
    }
    return dictionary;
}

PlistValue FuzzInput::record() {
    PlistDictionary fields;
    for (auto count = pick(9); count > 0 && !atEnd(); --count) {
        const auto field = pick(8) == 0 ? text() : std::string(oneOf(*this, recordFields));
        const auto fitting = field == "icon" ? PlistValue(dataOf("tiff")) : PlistValue(text());
        fields.insert_or_assign(field, pick(3) == 0 ? value(2) : fitting);
    }
    return fields;
}

PlistValue FuzzInput::list() {
    if (pick(8) == 7) {
        return value();
    }
    PlistArray elements;
    for (auto count = pick(12); count > 0 && !atEnd(); --count) {
        elements.push_back(pick(8) == 7 ? value(3) : record());
    }
    return elements;
}

PlistDictionary FuzzInput::store() {
    constexpr std::array<std::string_view, 5> listKeys{
        "arrOfCreateNewFile", "arrOfCopyFilesTo", "arrOfCommonPath", "arrOfCustomIcon", "arrOfOthers"};
    PlistDictionary store;
    for (auto count = pick(12); count > 0 && !atEnd(); --count) {
        if (pick(2) == 0) {
            store.insert_or_assign(std::string(oneOf(*this, listKeys)), list());
        } else {
            const auto key = text();
            store.insert_or_assign(key, value(3));
        }
    }
    return store;
}

} // namespace tarnwick::fuzz
