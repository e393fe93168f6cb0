#include "prefs/HeldFiles.h"

#include "platform/FileManager.h"
#include "platform/KnownFolders.h"
#include "platform/Process.h"

#include <string_view>

namespace tarnwick {
namespace {

/// The number of a process follows.
constexpr std::string_view folderName = "org.halvane.Tarnwick.undo-";
/// No system counts further.
constexpr int greatestProcess = 1'000'000'000;

/// The process whose folder has this name; nothing for a folder of anything else.
std::optional<int> processOf(std::string_view name) {
    if (!name.starts_with(folderName)) {
        return std::nullopt;
    }
    name.remove_prefix(folderName.size());
    int process = 0;
    for (const auto digit : name) {
        if (digit < '0' || digit > '9' || process > greatestProcess / 10) {
            return std::nullopt;
        }
        process = process * 10 + (digit - '0');
    }
    return process > 0 ? std::optional(process) : std::nullopt;
}

} // namespace

std::string HeldFiles::folderOf(int process) const {
    return folders_.temporary().append("/").append(folderName).append(std::to_string(process));
}

std::optional<std::string> HeldFiles::newPlace() {
    const auto folder = folderOf(process_.identifier());
    if (!files_.createFolder(folder)) {
        return std::nullopt;
    }
    return folder + "/" + std::to_string(++places_);
}

std::optional<std::string> HeldFiles::take(const std::string& path) {
    auto place = newPlace();
    if (place && !files_.move(path, *place)) {
        return std::nullopt;
    }
    return place;
}

bool HeldFiles::isPlace(std::string_view path) const {
    const auto start = folders_.temporary().append("/");
    if (!path.starts_with(start)) {
        return false;
    }
    path.remove_prefix(start.size());
    const auto end = path.find('/');
    if (end == std::string_view::npos) {
        return false;
    }
    const auto number = path.substr(end + 1);
    return processOf(path.substr(0, end)) && !number.empty() &&
           number.find_first_not_of("0123456789") == std::string_view::npos;
}

void HeldFiles::removeAll() {
    if (const auto folder = folderOf(process_.identifier()); files_.exists(folder)) {
        files_.remove(folder);
    }
}

void HeldFiles::removeAbandoned() {
    for (const auto& name : files_.namesIn(folders_.temporary())) {
        const auto process = processOf(name);
        // A number may come back: what lies under this process's own is not its own yet.
        if (process && (*process == process_.identifier() || !process_.isRunning(*process))) {
            files_.remove(folderOf(*process));
        }
    }
}

} // namespace tarnwick
