#include "prefs/TemplateFiles.h"

#include "platform/FileManager.h"
#include "platform/SystemLog.h"
#include "prefs/GroupContainer.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleList.h"
#include "values/PathText.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

namespace tarnwick {
namespace {

/// The first word of a note; the file names follow.
constexpr std::string_view moving = "move";
constexpr std::string_view removing = "remove";
constexpr std::string_view copying = "copy";
constexpr std::string_view layingOut = "lay out";

/// The texts of a record are the user's: a slash leads elsewhere, and the two dot names are folders.
bool namesAFileInTheFolder(const std::string& name) {
    return !name.empty() && name.find('/') == std::string::npos && name != "." && name != "..";
}

std::optional<std::string> templatePath(const Platform& platform, const std::string& name) {
    auto path = GroupContainer(platform.folders).templateFolder();
    if (!path || !namesAFileInTheFolder(name)) {
        return std::nullopt;
    }
    path->append("/").append(name);
    return path;
}

/// The stored note; empty without one, and when it is none of ours.
std::vector<std::string> notedWords(const LocalPreferences& local) {
    std::vector<std::string> words;
    const auto stored = local.value(key::pendingTemplateFiles);
    if (const auto* elements = stored ? stored->array() : nullptr) {
        for (const auto& element : *elements) {
            const auto* word = element.string();
            if (!word) {
                return {};
            }
            words.push_back(*word);
        }
    }
    return words;
}

/// Whether a record's file has this name. A template without extension lies under its bare name when it was
/// copied in, and is looked for with a dot after it later.
bool isOwned(const RuleList& templates, const std::string& name) {
    return std::any_of(templates.begin(), templates.end(), [&](const auto& record) {
        return templateFileName(record) == name ||
               (record.text(field::extension).empty() && record.text(field::displayName) == name);
    });
}

} // namespace

void TemplateFiles::noteMove(const RuleRecord& old, const RuleRecord& changed) {
    const auto from = templateFileName(old);
    const auto to = templateFileName(changed);
    if (from != to && templatePath(platform_, from) && templatePath(platform_, to)) {
        note({std::string(moving), from, to});
    }
}

void TemplateFiles::move(const RuleRecord& old, const RuleRecord& changed) {
    const auto from = templatePath(platform_, templateFileName(old));
    const auto to = templatePath(platform_, templateFileName(changed));
    if (from && to) {
        platform_.files.move(*from, *to);
    }
    forget();
}

void TemplateFiles::noteRemoval(const RuleRecord& record) {
    if (const auto name = templateFileName(record); templatePath(platform_, name)) {
        note({std::string(removing), name});
    }
}

void TemplateFiles::remove(const RuleRecord& record) {
    if (const auto path = templatePath(platform_, templateFileName(record))) {
        platform_.files.remove(*path);
    }
    forget();
}

void TemplateFiles::noteCopies(const std::vector<std::string>& paths) {
    std::vector<std::string> words{std::string(copying)};
    for (const auto& path : paths) {
        std::string name(lastPathComponent(path));
        // A file that is there already is not ours to remove.
        if (const auto copied = templatePath(platform_, name); copied && !platform_.files.exists(*copied)) {
            words.push_back(std::move(name));
        }
    }
    if (words.size() > 1) {
        note(std::move(words));
        local_.synchronize();
    }
}

bool TemplateFiles::copy(const std::string& path) {
    const auto copied = templatePath(platform_, std::string(lastPathComponent(path)));
    return copied && platform_.files.copy(path, *copied);
}

void TemplateFiles::noteLayout() {
    note({std::string(layingOut)});
}

bool TemplateFiles::isLayoutPending() const {
    const auto words = notedWords(local_);
    return !words.empty() && words.front() == layingOut;
}

void TemplateFiles::finish(const RuleList& templates) {
    if (!local_.contains(key::pendingTemplateFiles) || !GroupContainer(platform_.folders).templateFolder()) {
        return;
    }
    const auto words = notedWords(local_);
    const auto log = [&](const std::string& name, std::string_view what) {
        platform_.log.write("template file " + name + ": " + std::string(what) + " after an interruption");
    };
    const auto removeStranger = [&](const std::string& name) {
        const auto path = templatePath(platform_, name);
        if (path && !isOwned(templates, name) && platform_.files.exists(*path) &&
            platform_.files.remove(*path)) {
            log(name, "removed");
        }
    };
    if (words.size() == 3 && words[0] == moving) {
        const auto from = templatePath(platform_, words[1]);
        const auto to = templatePath(platform_, words[2]);
        if (from && to && !isOwned(templates, words[1]) && isOwned(templates, words[2]) &&
            platform_.files.exists(*from) && platform_.files.move(*from, *to)) {
            log(words[1], "moved to " + words[2]);
        }
    } else if (!words.empty() && (words[0] == removing || words[0] == copying)) {
        std::for_each(std::next(words.begin()), words.end(), removeStranger);
    }
    forget();
}

void TemplateFiles::note(std::vector<std::string> words) {
    PlistArray stored;
    for (auto& word : words) {
        stored.emplace_back(std::move(word));
    }
    local_.set(key::pendingTemplateFiles, PlistValue(std::move(stored)));
}

void TemplateFiles::forget() {
    if (local_.contains(key::pendingTemplateFiles)) {
        local_.remove(key::pendingTemplateFiles);
    }
}

} // namespace tarnwick
