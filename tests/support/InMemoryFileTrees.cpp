#include "tests/support/InMemoryFileTrees.h"

#include <algorithm>

namespace tarnwick::testing {

std::optional<PlistValue> InMemoryFileTrees::read(const std::string& path) const {
    if (const auto file = files_.files.find(path); file != files_.files.end()) {
        return PlistData({file->second.begin(), file->second.end()});
    }
    if (links.count(path) != 0 || files_.folders.count(path) == 0) {
        return std::nullopt;
    }
    PlistDictionary folder;
    for (const auto& name : namesIn(path)) {
        auto inside = read(path + "/" + name);
        if (!inside) {
            return std::nullopt;
        }
        folder.emplace(name, *std::move(inside));
    }
    return folder;
}

bool InMemoryFileTrees::write(const std::string& path, const PlistValue& tree) {
    log_.add("write tree " + path);
    const auto isThere = files_.exists(path);
    if (!isThere && put(path, tree)) {
        return true;
    }
    if (!isThere) {
        files_.erase(path);
    }
    return false;
}

bool InMemoryFileTrees::put(const std::string& path, const PlistValue& tree) {
    const auto parent = path.substr(0, path.rfind('/'));
    if (files_.failing.count(path) != 0 || files_.folders.count(parent) == 0) {
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

std::vector<std::string> InMemoryFileTrees::namesIn(const std::string& folder) const {
    auto names = files_.namesIn(folder);
    for (const auto& paths : {files_.folders, links}) {
        for (const auto& path : paths) {
            if (path.size() > folder.size() && path.substr(0, path.rfind('/')) == folder) {
                names.insert(path.substr(folder.size() + 1));
            }
        }
    }
    return {names.begin(), names.end()};
}

} // namespace tarnwick::testing
