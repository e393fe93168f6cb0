#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/FileTrees.h"
#include "adapters/foundation/RegularFiles.h"
#include "platform/FileContents.h"

#import <Foundation/Foundation.h>

#include <array>
#include <string_view>

namespace tarnwick {
namespace {

ListFileFault faultOf(FileFault fault) {
    switch (fault) {
    case FileFault::unreadable:
        break;
    case FileFault::notRegular:
        return ListFileFault::notRegular;
    case FileFault::tooLarge:
        return ListFileFault::tooLarge;
    }
    return ListFileFault::unreadable;
}

/// The other forms of property lists are none of ours, and their readers are not to be trusted with anything.
bool isXML(const PlistData &data) {
    std::string_view bytes(reinterpret_cast<const char *>(data.bytes()), data.size());
    const auto startsWith = [&bytes](
                                std::string_view start) { return bytes.substr(0, start.size()) == start; };
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (startsWith("\xFE\xFF") || startsWith("\xFF\xFE")) {
        return true;
    }
    if (startsWith(mark)) {
        bytes.remove_prefix(mark.size());
    }
    const auto start = bytes.find_first_not_of(" \t\r\n");
    return start != std::string_view::npos && bytes[start] == '<';
}

std::optional<PlistValue> valueIn(NSData *bytes) {
    NSPropertyListFormat format = NSPropertyListXMLFormat_v1_0;
    NSError *error = nil;
    return toPlistValue([NSPropertyListSerialization propertyListWithData:bytes
                                                                  options:NSPropertyListImmutable
                                                                   format:&format
                                                                    error:&error]);
}

class FoundationFileContents final : public FileContents {
public:
    std::optional<PlistValue> readTree(const std::string &path) const override { return readFileTree(path); }
    bool writeTree(const std::string &path, const PlistValue &tree) override {
        return writeFileTree(path, tree);
    }

    ListFileContent readList(const std::string &path) const override {
        const auto content = readRegularFile(path, mostBytes);
        if (const auto *fault = std::get_if<FileFault>(&content)) {
            return faultOf(*fault);
        }
        const auto &bytes = *std::get_if<PlistData>(&content);
        if (bytes.empty()) {
            return ListFileFault::empty;
        }
        if (!isXML(bytes)) {
            return ListFileFault::foreign;
        }
        auto value = valueIn(toNSData(bytes));
        return value ? ListFileContent(*std::move(value)) : ListFileContent(ListFileFault::damaged);
    }

    ListFileWriting writeList(const std::string &path, const PlistValue &value) override {
        NSError *error = nil;
        NSData *bytes = [NSPropertyListSerialization dataWithPropertyList:toObject(value)
                                                                   format:NSPropertyListXMLFormat_v1_0
                                                                  options:0
                                                                    error:&error];
        if ([bytes length] > mostBytes) {
            return ListFileWriting::tooLarge;
        }
        // A sandbox lets this method alone put a file beside the chosen one and rename it.
        return [bytes writeToFile:toNSString(path) options:NSDataWritingAtomic error:&error]
                   ? ListFileWriting::done
                   : ListFileWriting::failed;
    }

    std::optional<PlistValue> propertyList(const std::string &path) const override {
        NSData *bytes = [NSData dataWithContentsOfFile:toNSString(path)];
        return bytes ? valueIn(bytes) : std::nullopt;
    }
};

} // namespace

std::unique_ptr<FileContents> makeFileContents() {
    return std::make_unique<FoundationFileContents>();
}

} // namespace tarnwick
