// Part of ForeignDrags.mm, where GNUstep Back 0.29 falls short: the addresses in what is dragged.

#include "gnustep/events/AddressList.h"

#include <algorithm>
#include <string_view>

namespace {

int digit(char character) {
    const std::string_view digits = "0123456789abcdef";
    const auto lower = character >= 'A' && character <= 'F' ? static_cast<char>(character + 32) : character;
    const auto found = digits.find(lower);
    return found == std::string_view::npos ? -1 : static_cast<int>(found);
}

std::string decoded(std::string_view text) {
    std::string result;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool isEscape = text[place] == '%' && place + 2 < text.size() && digit(text[place + 1]) >= 0 &&
                              digit(text[place + 2]) >= 0;
        if (isEscape) {
            result += static_cast<char>(digit(text[place + 1]) * 16 + digit(text[place + 2]));
            place += 2;
        } else {
            result += text[place];
        }
    }
    return result;
}

/// The path of a file of this machine; empty for any other address.
std::string pathIn(std::string_view address) {
    for (const std::string_view start : {"file:///", "file://localhost/"}) {
        if (address.substr(0, start.size()) == start) {
            return decoded(address.substr(start.size() - 1));
        }
    }
    return {};
}

} // namespace

std::vector<std::string> TNPathsInAddresses(const std::string& addresses) {
    std::vector<std::string> paths;
    std::size_t begin = 0;
    while (begin < addresses.size()) {
        const auto end = std::min(addresses.find_first_of("\r\n", begin), addresses.size());
        auto path = pathIn(std::string_view(addresses).substr(begin, end - begin));
        if (!path.empty()) {
            paths.push_back(std::move(path));
        }
        begin = end + 1;
    }
    return paths;
}
