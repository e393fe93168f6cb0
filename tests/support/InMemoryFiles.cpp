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
    std::erase_if(files, [&](const auto& file) { return file.first == path || liesIn(file.first, path); });
    std::erase_if(folders, [&](const auto& folder) { return folder == path || liesIn(folder, path); });
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

bool InMemoryFiles::copy(const std::string& from, const std::string& to) {
    log_.add("copy " + from + " -> " + to);
    if (failing.count(to) != 0 || files.count(from) == 0 || exists(to) || folders.count(parentOf(to)) == 0) {
        return false;
    }
    files[to] = files[from];
    return true;
}

bool InMemoryFiles::move(const std::string& from, const std::string& to) {
    log_.add("move " + from + " -> " + to);
    if (failing.count(to) != 0 || files.count(from) == 0 || exists(to) || folders.count(parentOf(to)) == 0) {
        return false;
    }
    files[to] = files[from];
    files.erase(from);
    return true;
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

} // namespace tarnwick::testing
