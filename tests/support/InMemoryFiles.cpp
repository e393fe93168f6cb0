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

std::string InMemoryFiles::targetOf(const std::string& path) const {
    const auto link = links.find(path);
    return link == links.end() ? path : link->second;
}

bool InMemoryFiles::exists(const std::string& path) const {
    const auto target = targetOf(path);
    return files.count(target) != 0 || folders.count(target) != 0;
}

bool InMemoryFiles::isThere(const std::string& path) const {
    return links.count(path) != 0 || exists(path);
}

FileKind InMemoryFiles::kindOf(const std::string& path) const {
    asked.push_back(path);
    if (asking) {
        asking(path);
    }
    if (const auto found = answers.find(path); found != answers.end()) {
        return found->second;
    }
    if (!exists(path)) {
        return FileKind::missing;
    }
    return folders.count(targetOf(path)) != 0 ? FileKind::folder : FileKind::file;
}

std::vector<std::string> InMemoryFiles::namesIn(const std::string& folder) const {
    std::set<std::string> names;
    const auto add = [&](const std::string& path) {
        if (path.size() > folder.size() && parentOf(path) == folder) {
            names.insert(path.substr(folder.size() + 1));
        }
    };
    for (const auto& [path, contents] : files) {
        add(path);
    }
    for (const auto& [path, target] : links) {
        add(path);
    }
    for (const auto& path : folders) {
        add(path);
    }
    return {names.begin(), names.end()};
}

bool InMemoryFiles::remove(const std::string& path) {
    log_.add("remove " + path);
    if (failing.count(path) != 0 || !isThere(path)) {
        return false;
    }
    erase(path);
    return true;
}

bool InMemoryFiles::createFolder(const std::string& path) {
    log_.add("create folder " + path);
    if (failing.count(path) != 0) {
        return false;
    }
    for (auto folder = path; !folder.empty(); folder = parentOf(folder)) {
        if (files.count(folder) != 0) {
            return false;
        }
    }
    for (auto folder = path; !folder.empty(); folder = parentOf(folder)) {
        folders.insert(folder);
    }
    return true;
}

bool InMemoryFiles::canPutAt(const std::string& path) const {
    const auto parent = parentOf(path);
    return failing.count(path) == 0 && !isThere(path) && (parent.empty() || folders.count(parent) != 0);
}

bool InMemoryFiles::canPut(const std::string& from, const std::string& to) const {
    return isThere(from) && canPutAt(to) && !liesIn(to, from);
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
    for (const auto& [path, target] : std::map(links)) {
        if (path == from || liesIn(path, from)) {
            links[moved(path)] = target;
        }
    }
}

void InMemoryFiles::erase(const std::string& path) {
    const auto goes = [&](const std::string& other) { return other == path || liesIn(other, path); };
    std::erase_if(files, [&](const auto& file) { return goes(file.first); });
    std::erase_if(links, [&](const auto& link) { return goes(link.first); });
    std::erase_if(folders, goes);
}

} // namespace tarnwick::testing
