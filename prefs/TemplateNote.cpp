#include "prefs/TemplateNote.h"

#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleList.h"
#include "values/PlistDigest.h"

#include <optional>
#include <string_view>
#include <utility>

namespace tarnwick {
namespace {

/// The first word of a note.
constexpr std::string_view copying = "copy";
constexpr std::string_view moving = "move";
constexpr std::string_view removing = "remove";
constexpr std::string_view puttingBack = "put back";
constexpr std::string_view layingOut = "lay out";
constexpr std::string_view puttingFolderBack = "put back folder";

PlistArray wordsOf(std::string_view first, const std::vector<std::string>& others) {
    PlistArray words{PlistValue(first)};
    words.insert(words.end(), others.begin(), others.end());
    return words;
}

std::vector<std::string> namesAndPlaces(const TemplatesPutBack& work) {
    std::vector<std::string> words;
    for (const auto& file : work.files) {
        words.push_back(file.name);
        words.push_back(file.place);
    }
    return words;
}

TemplatesPutBack fromNamesAndPlaces(const std::vector<std::string>& words) {
    TemplatesPutBack work;
    for (std::size_t word = 0; word + 1 < words.size(); word += 2) {
        work.files.push_back({words[word], words[word + 1]});
    }
    return work;
}

/// Nothing when one of them is no text.
std::optional<std::vector<std::string>> texts(const PlistValue& stored) {
    std::vector<std::string> words;
    const auto* elements = stored.array();
    for (const auto& element : elements ? *elements : PlistArray()) {
        const auto* word = element.string();
        if (!word) {
            return std::nullopt;
        }
        words.push_back(*word);
    }
    return words;
}

} // namespace

TemplateNote::TemplateNote(TemplateWork noted, const RuleList& changed) : work(std::move(noted)) {
    if (std::holds_alternative<TemplateFolderPutBack>(work)) {
        owner = digestOf(changed.toPlist());
    }
}

TemplateNote::TemplateNote(const PlistValue& stored) {
    auto words = texts(stored);
    if (!words || words->empty()) {
        return;
    }
    const auto first = std::move(words->front());
    words->erase(words->begin());
    if (first == copying) {
        work = TemplatesCopied{*std::move(words)};
    } else if (first == moving && words->size() == 2) {
        work = TemplateMoved{words->front(), words->back()};
    } else if (first == removing) {
        work = TemplatesRemoved{*std::move(words)};
    } else if (first == puttingBack) {
        work = fromNamesAndPlaces(*words);
    } else if (first == layingOut) {
        work = TemplatesLaidOut();
    } else if (first == puttingFolderBack && words->size() == 2) {
        work = TemplateFolderPutBack{words->front()};
        owner = words->back();
    }
}

PlistArray TemplateNote::words() const {
    if (const auto* copied = std::get_if<TemplatesCopied>(&work)) {
        return wordsOf(copying, copied->names);
    }
    if (const auto* moved = std::get_if<TemplateMoved>(&work)) {
        return wordsOf(moving, {moved->from, moved->to});
    }
    if (const auto* removed = std::get_if<TemplatesRemoved>(&work)) {
        return wordsOf(removing, removed->names);
    }
    if (const auto* putBack = std::get_if<TemplatesPutBack>(&work)) {
        return wordsOf(puttingBack, namesAndPlaces(*putBack));
    }
    if (const auto* folder = std::get_if<TemplateFolderPutBack>(&work)) {
        return wordsOf(puttingFolderBack, {folder->place, owner});
    }
    return std::holds_alternative<TemplatesLaidOut>(work) ? wordsOf(layingOut, {}) : PlistArray();
}

std::vector<std::string> TemplateNote::names() const {
    if (const auto* copied = std::get_if<TemplatesCopied>(&work)) {
        return copied->names;
    }
    if (const auto* moved = std::get_if<TemplateMoved>(&work)) {
        return {moved->from, moved->to};
    }
    if (const auto* removed = std::get_if<TemplatesRemoved>(&work)) {
        return removed->names;
    }
    std::vector<std::string> names;
    if (const auto* putBack = std::get_if<TemplatesPutBack>(&work)) {
        for (const auto& file : putBack->files) {
            names.push_back(file.name);
        }
    }
    return names;
}

void forgetTemplateNote(LocalPreferences& local) {
    if (local.contains(key::pendingTemplateFiles)) {
        local.remove(key::pendingTemplateFiles);
    }
}

void forgetTemplateNoteOnDisk(LocalPreferences& local) {
    forgetTemplateNote(local);
    local.synchronize();
}

} // namespace tarnwick
