#include "tests/support/InMemoryFiles.h"

namespace tarnwick::testing {
namespace {

bool liesIn(const std::string& path, const std::string& folder) {
    return path.rfind(folder + "/", 0) == 0;
}

std::string parentOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

} // namespace

bool InMemoryFiles::exists(const std::string& path) const {
    return files.count(path) != 0 || folders.count(path) != 0;
}

bool InMemoryFiles::remove(const std::string& path) {
    log_.add("remove " + path);
    if (failing.count(path) != 0 || !exists(path)) {
        return false;
    }
    erase(path);
    return true;
}

bool InMemoryFiles::createFolder(const std::string& path) {
    log_.add("create folder " + path);
    if (failing.count(path) != 0 || files.count(path) != 0) {
        return false;
    }
    for (auto folder = path; !folder.empty(); folder = parentOf(folder)) {
        folders.insert(folder);
    }
    return true;
}

bool InMemoryFiles::canPut(const std::string& from, const std::string& to) const {
    return failing.count(to) == 0 && exists(from) && !exists(to) && folders.count(parentOf(to)) != 0 &&
           !liesIn(to, from);
}

bool InMemoryFiles::copy(const std::string& from, const std::string& to) {
    log_.add("copy " + from + " -> " + to);
    if (!canPut(from, to)) {
        return false;
    }
    put(from, to);
    return true;
}

bool InMemoryFiles::move(const std::string& from, const std::string& to) {
    log_.add("move " + from + " -> " + to);
    if (!canPut(from, to)) {
        return false;
    }
    put(from, to);
    erase(from);
    return true;
}

bool InMemoryFiles::rename(const std::string& from, const std::string& to) {
    log_.add("rename " + from + " -> " + to);
    if (volumeOf(from) != volumeOf(to) || !canPut(from, to)) {
        return false;
    }
    put(from, to);
    erase(from);
    return true;
}

std::string InMemoryFiles::volumeOf(const std::string& path) const {
    for (const auto& volume : volumes) {
        if (path == volume || liesIn(path, volume)) {
            return volume;
        }
    }
    return "/";
}

void InMemoryFiles::put(const std::string& from, const std::string& to) {
    const auto moved = [&](const std::string& path) { return to + path.substr(from.size()); };
    for (const auto& folder : std::set(folders)) {
        if (folder == from || liesIn(folder, from)) {
            folders.insert(moved(folder));
        }
    }
    for (const auto& [path, contents] : std::map(files)) {
        if (path == from || liesIn(path, from)) {
            files[moved(path)] = contents;
        }
    }
}

void InMemoryFiles::erase(const std::string& path) {
    std::erase_if(files, [&](const auto& file) { return file.first == path || liesIn(file.first, path); });
    std::erase_if(folders, [&](const auto& folder) { return folder == path || liesIn(folder, path); });
}

std::optional<PlistValue> InMemoryFiles::propertyList(const std::string& path) const {
    log_.add("parse " + path);
    const auto found = propertyLists.find(path);
    return found == propertyLists.end() ? std::nullopt : std::optional(found->second);
}

std::set<std::string> InMemoryFiles::namesIn(const std::string& folder) const {
    std::set<std::string> names;
    for (const auto& [path, contents] : files) {
        if (parentOf(path) == folder) {
            names.insert(path.substr(folder.size() + 1));
        }
    }
    return names;
}

FileKind InMemoryFileStatus::kindOf(const std::string& path) const {
    asked.push_back(path);
    if (asking) {
        asking(path);
    }
    if (const auto found = answers.find(path); found != answers.end()) {
        return found->second;
    }
    if (files_.folders.count(path) != 0) {
        return FileKind::folder;
    }
    return files_.files.count(path) != 0 ? FileKind::file : FileKind::missing;
}

} // namespace tarnwick::testing
