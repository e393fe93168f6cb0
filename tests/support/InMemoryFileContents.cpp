#include "tests/support/InMemoryFileContents.h"

#include <algorithm>
#include <utility>

namespace tarnwick::testing {

std::optional<PlistValue> InMemoryFileContents::readTree(const std::string& path) const {
    if (const auto file = files_.files.find(path); file != files_.files.end()) {
        return PlistData({file->second.begin(), file->second.end()});
    }
    if (files_.folders.count(path) == 0) {
        return std::nullopt;
    }
    PlistDictionary folder;
    for (const auto& name : files_.namesIn(path)) {
        auto inside = readTree(path + "/" + name);
        if (!inside) {
            return std::nullopt;
        }
        folder.emplace(name, *std::move(inside));
    }
    return folder;
}

bool InMemoryFileContents::writeTree(const std::string& path, const PlistValue& tree) {
    log_.add("write tree " + path);
    if (!files_.canPutAt(path)) {
        return false;
    }
    if (put(path, tree)) {
        return true;
    }
    files_.erase(path);
    return false;
}

bool InMemoryFileContents::put(const std::string& path, const PlistValue& tree) {
    if (!files_.canPutAt(path)) {
        return false;
    }
    if (const auto* bytes = tree.data()) {
        files_.files[path] = std::string(bytes->bytes(), bytes->bytes() + bytes->size());
        return true;
    }
    const auto* folder = tree.dictionary();
    if (!folder) {
        return false;
    }
    files_.folders.insert(path);
    return std::all_of(folder->begin(), folder->end(),
        [&](const auto& entry) { return put(path + "/" + entry.first, entry.second); });
}

void InMemoryFileContents::putList(const std::string& path, ListFileContent content) {
    std::erase_if(lists_, [this](const auto& list) {
        return std::none_of(files_.files.begin(), files_.files.end(),
            [&](const auto& file) { return file.second == list.first; });
    });
    const auto text = "<plist " + std::to_string(++written_) + ">";
    lists_.emplace(text, std::move(content));
    files_.files[path] = text;
}

const ListFileContent* InMemoryFileContents::contentOf(const std::string& path) const {
    const auto file = files_.files.find(path);
    const auto list = file == files_.files.end() ? lists_.end() : lists_.find(file->second);
    return list == lists_.end() ? nullptr : &list->second;
}

const PlistValue* InMemoryFileContents::listAt(const std::string& path) const {
    const auto* content = contentOf(path);
    return content ? std::get_if<PlistValue>(content) : nullptr;
}

ListFileContent InMemoryFileContents::readList(const std::string& path) const {
    log_.add("read list " + path);
    if (const auto* content = contentOf(path)) {
        return *content;
    }
    if (files_.folders.count(path) != 0 || files_.links.count(path) != 0) {
        return ListFileFault::notRegular;
    }
    const auto file = files_.files.find(path);
    if (file == files_.files.end()) {
        return ListFileFault::unreadable;
    }
    return file->second.empty() ? ListFileFault::empty : ListFileFault::foreign;
}

ListFileWriting InMemoryFileContents::writeList(const std::string& path, const PlistValue& value) {
    log_.add("write list " + path);
    if (trouble) {
        return *trouble;
    }
    if (files_.files.count(path) == 0 && !files_.canPutAt(path)) {
        return ListFileWriting::failed;
    }
    putList(path, value);
    return ListFileWriting::done;
}

std::optional<PlistValue> InMemoryFileContents::propertyList(const std::string& path) const {
    log_.add("parse " + path);
    const auto* value = listAt(path);
    return value ? std::optional(*value) : std::nullopt;
}

} // namespace tarnwick::testing
