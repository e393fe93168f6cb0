#import "adapters/foundation/StringConversion.h"

namespace tarnwick {
namespace {

NSString *decoded(const char *bytes, NSUInteger length) {
    return [[[NSString alloc] initWithBytes:bytes length:length encoding:NSUTF8StringEncoding] autorelease];
}

/// The longest run from the start, at most four bytes, that is one character; 0 when there is none.
std::size_t characterLength(std::string_view text) {
    for (std::size_t length = 1; length <= 4 && length <= text.size(); ++length) {
        if (decoded(text.data(), length)) {
            return length;
        }
    }
    return 0;
}

NSString *repaired(std::string_view text) {
    NSMutableString *result = [NSMutableString string];
    while (!text.empty()) {
        const auto length = characterLength(text);
        [result appendString:length > 0 ? decoded(text.data(), length) : @"\uFFFD"];
        text.remove_prefix(length > 0 ? length : 1);
    }
    return result;
}

} // namespace

std::string toString(NSString *text) {
    NSData *bytes = [text dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
    return std::string(static_cast<const char *>([bytes bytes]), [bytes length]);
}

NSString *toNSString(std::string_view text) {
    NSString *result = decoded(text.data(), text.size());
    return result ? result : repaired(text);
}

} // namespace tarnwick
