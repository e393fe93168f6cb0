#include "prefs/TemplateRecovery.h"

#include "platform/FileManager.h"
#include "platform/SystemLog.h"
#include "prefs/GroupContainer.h"
#include "prefs/HeldFiles.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleList.h"
#include "prefs/TemplateFolder.h"
#include "prefs/TemplateNote.h"
#include "values/PlistDigest.h"

#include <algorithm>

namespace tarnwick {
namespace {

/// Whether a record's file has this name. A template without extension lies under its bare name when it was
/// copied in, and is looked for with a dot after it later.
bool isOwned(const RuleList& templates, const std::string& name) {
    return std::any_of(templates.begin(), templates.end(), [&](const auto& record) {
        return templateFileName(record) == name ||
               (record.text(field::extension).empty() && record.text(field::displayName) == name);
    });
}

} // namespace

void TemplateRecovery::recoverHeld(const RuleList& templates) {
    const auto folder = folder_.path();
    if (!folder) {
        return;
    }
    const auto stored = local_.value(key::pendingTemplateFiles);
    const auto noted = stored ? TemplateNote(*stored) : TemplateNote();
    if (const auto* held = std::get_if<TemplatesPutBack>(&noted.work)) {
        for (const auto& file : held->files) {
            const auto path = folder_.pathOf(file.name);
            if (path && isOwned(templates, file.name) && replaceFromHeld(file.place, *path)) {
                log(file.name, "put back");
            }
        }
        forgetTemplateNoteOnDisk(local_);
    } else if (const auto* heldFolder = std::get_if<TemplateFolderPutBack>(&noted.work)) {
        if (noted.owner == digestOf(templates.toPlist()) && replaceFromHeld(heldFolder->place, *folder)) {
            log_.write("the template folder is put back after an interruption");
        }
        forgetTemplateNoteOnDisk(local_);
    }
    held_.removeAbandoned();
}

bool TemplateRecovery::replaceFromHeld(const std::string& place, const std::string& path) {
    if (!held_.isPlace(place) || !files_.exists(place)) {
        return false;
    }
    if (files_.exists(path)) {
        files_.remove(path);
    }
    return folder_.bringBack(place, path);
}

void TemplateRecovery::recover(const RuleList& templates, bool (*isFactory)(const RuleList&)) {
    const auto stored = local_.value(key::pendingTemplateFiles);
    const auto folder = folder_.path();
    if (!stored || !folder) {
        return;
    }
    const auto work = TemplateNote(*stored).work;
    // Any other list has files of its own that the layout would remove.
    if (std::holds_alternative<TemplatesLaidOut>(work) && isFactory(templates)) {
        log_.write("the template folder is laid out again after an interruption");
        files_.remove(*folder);
        folder_.layOut(templates);
    } else if (const auto* moved = std::get_if<TemplateMoved>(&work)) {
        const auto from = folder_.pathOf(moved->from);
        const auto to = folder_.pathOf(moved->to);
        if (from && to && !isOwned(templates, moved->from) && isOwned(templates, moved->to) &&
            files_.exists(*from) && files_.move(*from, *to)) {
            log(moved->from, "moved to " + moved->to);
        }
    } else if (const auto* removed = std::get_if<TemplatesRemoved>(&work)) {
        removeStrangers(removed->names, templates);
    } else if (const auto* copied = std::get_if<TemplatesCopied>(&work)) {
        removeStrangers(copied->names, templates);
    }
    forgetTemplateNote(local_);
}

void TemplateRecovery::removeStrangers(const std::vector<std::string>& names, const RuleList& templates) {
    for (const auto& name : names) {
        const auto path = folder_.pathOf(name);
        if (path && !isOwned(templates, name) && files_.exists(*path) && files_.remove(*path)) {
            log(name, "removed");
        }
    }
}

void TemplateRecovery::log(std::string_view name, std::string_view what) {
    log_.write(std::string("template file ")
                   .append(name)
                   .append(": ")
                   .append(what)
                   .append(" after an interruption"));
}

} // namespace tarnwick
