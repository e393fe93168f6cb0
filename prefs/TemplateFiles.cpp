#include "prefs/TemplateFiles.h"

#include "platform/ApplicationBundle.h"
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

namespace tarnwick {
namespace {

/// The first word of a note; the file names follow.
constexpr std::string_view moving = "move";
constexpr std::string_view removing = "remove";
constexpr std::string_view copying = "copy";
constexpr std::string_view layingOut = "lay out";

std::optional<std::string> templatePath(const KnownFolders& folders, const std::string& name) {
    auto path = GroupContainer(folders).templateFolder();
    if (!path || !isFileName(name)) {
        return std::nullopt;
    }
    path->append("/").append(name);
    return path;
}

std::vector<std::string> wordsOf(std::string_view first, std::vector<std::string> names) {
    names.insert(names.begin(), std::string(first));
    return names;
}

/// The words of a note; none for work that needs none.
std::vector<std::string> noteOf(const TemplateWork& work) {
    if (const auto* copied = std::get_if<TemplatesCopied>(&work)) {
        return wordsOf(copying, copied->names);
    }
    if (const auto* moved = std::get_if<TemplateMoved>(&work)) {
        return wordsOf(moving, {moved->from, moved->to});
    }
    if (const auto* removed = std::get_if<TemplateRemoved>(&work)) {
        return wordsOf(removing, {removed->name});
    }
    return std::holds_alternative<TemplatesLaidOut>(work) ? wordsOf(layingOut, {}) : wordsOf("", {});
}

/// The work that a stored note stands for; none without one, and when it is none of ours.
TemplateWork workNoted(const LocalPreferences& local) {
    const auto stored = local.value(key::pendingTemplateFiles);
    const auto* elements = stored ? stored->array() : nullptr;
    std::vector<std::string> names;
    for (const auto& element : elements ? *elements : PlistArray()) {
        const auto* word = element.string();
        if (!word) {
            return {};
        }
        names.push_back(*word);
    }
    if (names.empty()) {
        return {};
    }
    const auto first = std::move(names.front());
    names.erase(names.begin());
    if (first == copying) {
        return TemplatesCopied{std::move(names)};
    }
    if (first == moving && names.size() == 2) {
        return TemplateMoved{names[0], names[1]};
    }
    if (first == removing && !names.empty()) {
        return TemplateRemoved{names[0]};
    }
    return first == layingOut ? TemplateWork(TemplatesLaidOut()) : TemplateWork();
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

void TemplateFiles::begin(const TemplateWork& work) {
    const auto words = noteOf(work);
    const auto names = std::next(words.begin());
    const auto isRefused = [&](const std::string& name) { return !templatePath(folders_, name); };
    if (words.front().empty() || std::any_of(names, words.end(), isRefused)) {
        return;
    }
    local_.set(key::pendingTemplateFiles, PlistArray(words.begin(), words.end()));
}

void TemplateFiles::finish(const TemplateWork& work, const RuleList& templates) {
    if (const auto* moved = std::get_if<TemplateMoved>(&work)) {
        move(*moved);
    } else if (const auto* removed = std::get_if<TemplateRemoved>(&work)) {
        remove(*removed);
    } else if (std::holds_alternative<TemplatesLaidOut>(work)) {
        layOut(templates);
    }
    if (!std::holds_alternative<std::monostate>(work)) {
        forget();
    }
}

void TemplateFiles::move(const TemplateMoved& moved) {
    const auto from = templatePath(folders_, moved.from);
    const auto to = templatePath(folders_, moved.to);
    if (from && to) {
        files_.move(*from, *to);
    }
}

void TemplateFiles::remove(const TemplateRemoved& removed) {
    if (const auto path = templatePath(folders_, removed.name)) {
        files_.remove(*path);
    }
}

void TemplateFiles::layOut(const RuleList& templates) {
    const auto folder = GroupContainer(folders_).templateFolder();
    if (!folder) {
        log_.write("no group container: the template folder is not laid out");
        return;
    }
    if (files_.exists(*folder)) {
        files_.remove(*folder);
    }
    files_.createFolder(*folder);
    const auto resources = bundle_.resourceFolder();
    std::size_t leftOut = 0;
    // A file that cannot be copied is left out; its record stays.
    const auto copyResource = [&](const std::string& file) {
        leftOut += files_.copy(resources + file, *folder + file) ? 0 : 1;
    };
    for (const auto& record : templates) {
        copyResource("/" + templateFileName(record));
        copyResource(std::string("/").append(record.text(field::extension)).append(".png"));
    }
    if (leftOut > 0) {
        log_.write("template files and icons that could not be copied: " + std::to_string(leftOut));
    }
}

TemplateWork TemplateFiles::beginCopying(const std::vector<std::string>& paths) {
    TemplatesCopied work;
    for (const auto& path : paths) {
        std::string name(lastPathComponent(path));
        // A file that is there already is not ours to remove.
        if (const auto copied = templatePath(folders_, name); copied && !files_.exists(*copied)) {
            work.names.push_back(std::move(name));
        }
    }
    if (!work.names.empty()) {
        begin(work);
        local_.synchronize();
    }
    return work;
}

bool TemplateFiles::copy(const std::string& path) {
    const auto copied = templatePath(folders_, std::string(lastPathComponent(path)));
    return copied && files_.copy(path, *copied);
}

void TemplateFiles::recover(const RuleList& templates, bool (*isFactory)(const RuleList&)) {
    if (!local_.contains(key::pendingTemplateFiles)) {
        return;
    }
    const auto work = workNoted(local_);
    // Any other list has files of its own that the layout would remove.
    if (std::holds_alternative<TemplatesLaidOut>(work) && isFactory(templates)) {
        log_.write("the template folder is laid out again after an interruption");
        layOut(templates);
    }
    if (!GroupContainer(folders_).templateFolder()) {
        return;
    }
    if (const auto* moved = std::get_if<TemplateMoved>(&work)) {
        const auto from = templatePath(folders_, moved->from);
        const auto to = templatePath(folders_, moved->to);
        if (from && to && !isOwned(templates, moved->from) && isOwned(templates, moved->to) &&
            files_.exists(*from) && files_.move(*from, *to)) {
            log(moved->from, "moved to " + moved->to);
        }
    } else if (const auto* removed = std::get_if<TemplateRemoved>(&work)) {
        removeStranger(removed->name, templates);
    } else if (const auto* copied = std::get_if<TemplatesCopied>(&work)) {
        for (const auto& name : copied->names) {
            removeStranger(name, templates);
        }
    }
    forget();
}

void TemplateFiles::removeStranger(const std::string& name, const RuleList& templates) {
    const auto path = templatePath(folders_, name);
    if (path && !isOwned(templates, name) && files_.exists(*path) && files_.remove(*path)) {
        log(name, "removed");
    }
}

void TemplateFiles::log(std::string_view name, std::string_view what) {
    log_.write(std::string("template file ")
                   .append(name)
                   .append(": ")
                   .append(what)
                   .append(" after an interruption"));
}

void TemplateFiles::forget() {
    if (local_.contains(key::pendingTemplateFiles)) {
        local_.remove(key::pendingTemplateFiles);
    }
}

} // namespace tarnwick
