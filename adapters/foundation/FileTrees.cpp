#include "adapters/foundation/FileTrees.h"

#include "adapters/foundation/RegularFiles.h"
#include "values/Utf8.h"

#include <algorithm>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick {
namespace {

enum class Kind { nothing, file, folder, other };

Kind kindOf(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) {
        return Kind::nothing;
    }
    if (S_ISDIR(status.st_mode)) {
        return Kind::folder;
    }
    return S_ISREG(status.st_mode) ? Kind::file : Kind::other;
}

struct Closing {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

std::optional<PlistValue> folderAt(const std::string& path) {
    const auto names = namesInFolder(path);
    if (!names) {
        return std::nullopt;
    }
    PlistDictionary folder;
    for (const auto& name : *names) {
        auto inside = isValidUtf8(name) ? readFileTree(path + "/" + name) : std::nullopt;
        if (!inside) {
            return std::nullopt;
        }
        folder.emplace(name, *std::move(inside));
    }
    return folder;
}

void removeTree(const std::string& path) {
    if (kindOf(path) != Kind::folder) {
        ::unlink(path.c_str());
        return;
    }
    for (const auto& name : namesInFolder(path).value_or(std::vector<std::string>())) {
        removeTree(path + "/" + name);
    }
    ::rmdir(path.c_str());
}

bool putFolder(const std::string& path, const PlistDictionary& content) {
    constexpr mode_t openToAll = 0777;
    if (::mkdir(path.c_str(), openToAll) != 0) {
        return false;
    }
    const auto isPut = [&](const auto& entry) {
        return writeFileTree(path + "/" + entry.first, entry.second);
    };
    if (std::all_of(content.begin(), content.end(), isPut)) {
        return true;
    }
    removeTree(path);
    return false;
}

} // namespace

std::optional<std::vector<std::string>> namesInFolder(const std::string& path) {
    const std::unique_ptr<DIR, Closing> folder(::opendir(path.c_str()));
    if (!folder) {
        return std::nullopt;
    }
    std::vector<std::string> names;
    while (
        const auto* entry = ::readdir(folder.get())) { // NOLINT(concurrency-mt-unsafe): a stream of its own
        const std::string name(entry->d_name);
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<PlistValue> readFileTree(const std::string& path) {
    if (kindOf(path) == Kind::folder) {
        return folderAt(path);
    }
    auto content = readRegularFile(path);
    auto* bytes = std::get_if<PlistData>(&content);
    return bytes ? std::optional<PlistValue>(std::move(*bytes)) : std::nullopt;
}

bool writeFileTree(const std::string& path, const PlistValue& tree) {
    if (const auto* bytes = tree.data()) {
        return writeNewFile(path, *bytes);
    }
    const auto* folder = tree.dictionary();
    return folder && putFolder(path, *folder);
}

} // namespace tarnwick
