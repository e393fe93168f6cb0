#include "ui/RuleHealth.h"

#include "platform/RunLoop.h"
#include "prefs/GroupContainer.h"
#include "prefs/RuleList.h"
#include "ui/FaultDisplay.h"

#include <algorithm>

namespace tarnwick {
namespace {

/// An edit has reached the disk by then.
constexpr double afterChangeSeconds = 0.3;
constexpr double sliceSeconds = 0.004;

/// What a rule cannot do without.
enum class Need { templateFile, folder, picture, pictureIfAny };

Need needOf(RuleCategory category) {
    const auto& facts = factsOf(category);
    if (facts.hasTemplateFiles) {
        return Need::templateFile;
    }
    if (facts.source == RuleSource::folders) {
        return Need::folder;
    }
    return facts.hasPictures && !facts.hasActions ? Need::picture : Need::pictureIfAny;
}

bool hasFolder(const RuleRecord& record) {
    const auto path = record.text(field::realPath);
    return !path.empty() && path != undefinedPath;
}

} // namespace

RuleHealth::RuleHealth(const RuleLists& lists, const KnownFolders& folders, const ApplicationBundle& bundle,
    const FileManager& files, Images& images, RunLoop& runLoop, FaultDisplay& display)
    : lists_(lists), folders_(folders), bundle_(bundle), runLoop_(runLoop), display_(display),
      files_(files, runLoop),
      pictures_(PerCategory<PictureLooks>::madeBy([&images](RuleCategory) { return PictureLooks(images); })) {
}

void RuleHealth::watch() {
    isWatching_ = true;
    lookSoon(0);
}

void RuleHealth::pageShown(std::optional<RuleCategory> category) {
    shown_ = category;
    lookSoon(0);
}

void RuleHealth::listChanged(RuleCategory category) {
    if (category == shown_) {
        lookSoon(afterChangeSeconds);
    }
}

void RuleHealth::applicationActivated() {
    files_.forgetSlowVolumes();
    lookSoon(0);
}

RuleFault RuleHealth::fault(RuleCategory category, long row) const {
    const auto& list = lists_[category];
    return list.holds(row) ? faultOf(category, list[static_cast<std::size_t>(row)]) : RuleFault::none;
}

std::optional<long> RuleHealth::nextFault(RuleCategory category, long row) const {
    const auto count = static_cast<long>(lists_[category].size());
    for (long step = 1; step <= count; ++step) {
        const auto candidate = (std::max(row, -1L) + step) % count;
        if (fault(category, candidate) != RuleFault::none) {
            return candidate;
        }
    }
    return std::nullopt;
}

void RuleHealth::lookSoon(double delaySeconds) {
    if (!isWatching_ || !shown_) {
        return;
    }
    const auto pass = ++passNumber_;
    runLoop_.performAfterDelay(delaySeconds, [this, pass] {
        if (pass == passNumber_) {
            begin();
            goOn(pass);
        }
    });
}

void RuleHealth::begin() {
    pass_ = Pass();
    pass_.category = *shown_;
    const auto& list = lists_[pass_.category];
    if (factsOf(pass_.category).hasTemplateFiles) {
        templateFolder_ = GroupContainer(folders_).templateFolder().value_or("");
    }
    const auto inSight = display_.rowsInSight(pass_.category);
    for (auto row = inSight.first; row < inSight.first + inSight.count; ++row) {
        if (list.holds(row)) {
            look(list[static_cast<std::size_t>(row)]);
        }
    }
    display_.showFaults(pass_.category, summaries_[pass_.category]);
}

void RuleHealth::goOn(std::size_t pass) {
    if (pass != passNumber_) {
        return;
    }
    const auto& list = lists_[pass_.category];
    const auto start = runLoop_.now();
    while (pass_.next < list.size() && runLoop_.now() - start < sliceSeconds) {
        const auto& record = list[pass_.next++];
        look(record);
        ++pass_.counts[faultOf(pass_.category, record)];
    }
    if (pass_.next < list.size()) {
        runLoop_.performAfterDelay(0, [this, pass] { goOn(pass); });
    } else {
        finish();
    }
}

void RuleHealth::finish() {
    pictures_[pass_.category].forgetOthers();
    summaries_[pass_.category] = summaryOf(pass_.counts, bundle_);
    display_.showFaults(pass_.category, summaries_[pass_.category]);
}

void RuleHealth::look(const RuleRecord& record) {
    switch (needOf(pass_.category)) {
    case Need::templateFile:
        if (!templateFolder_.empty()) {
            files_.look(templateFile(record));
        }
        break;
    case Need::folder:
        if (hasFolder(record)) {
            files_.look(std::string(record.text(field::realPath)));
        }
        break;
    case Need::picture:
    case Need::pictureIfAny:
        if (const auto picture = record.data(field::icon); !picture.empty()) {
            pictures_[pass_.category].look(picture);
        }
        break;
    }
}

RuleFault RuleHealth::faultOf(RuleCategory category, const RuleRecord& record) const {
    const auto need = needOf(category);
    if (need == Need::templateFile) {
        return !templateFolder_.empty() && files_.known(templateFile(record)) == FileKind::missing
                   ? RuleFault::templateMissing
                   : RuleFault::none;
    }
    if (need == Need::folder) {
        if (!hasFolder(record)) {
            return RuleFault::folderUndefined;
        }
        const auto kind = files_.known(std::string(record.text(field::realPath)));
        if (kind == FileKind::missing) {
            return RuleFault::folderMissing;
        }
        return kind == FileKind::file ? RuleFault::notAFolder : RuleFault::none;
    }
    const auto picture = record.data(field::icon);
    if (picture.empty()) {
        return need == Need::picture ? RuleFault::pictureUnreadable : RuleFault::none;
    }
    return pictures_[category].isUnreadable(picture) ? RuleFault::pictureUnreadable : RuleFault::none;
}

std::string RuleHealth::templateFile(const RuleRecord& record) const {
    return templateFolder_ + "/" + templateFileName(record);
}

} // namespace tarnwick
