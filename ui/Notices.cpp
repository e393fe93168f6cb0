#include "ui/Notices.h"

#include "integration/FinderExtension.h"
#include "platform/ApplicationBundle.h"
#include "platform/PreferenceStore.h"
#include "platform/Workspace.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleCategory.h"
#include "ui/CountText.h"
#include "ui/WindowLayout.h"

#include <algorithm>

namespace tarnwick {

const char* titleOf(NoticeStep step) {
    switch (step) {
    case NoticeStep::none:
        break;
    case NoticeStep::turnOn:
        return "Turn On\u2026";
    case NoticeStep::showInFinder:
        return "Show in Finder";
    }
    return "";
}

std::vector<Notice> Notices::current() const {
    auto notices = all();
    std::erase_if(notices, [this](const Notice& notice) {
        return std::find(putAway_.begin(), putAway_.end(), notice.kind) != putAway_.end();
    });
    return notices;
}

std::vector<Notice> Notices::all() const {
    std::vector<Notice> notices;
    if (!bundle_.carriesExtension()) {
        // That it is off as well goes without saying.
        notices.push_back({.kind = NoticeKind::extensionMissing,
            .text =
                bundle_.localized("This copy of Tarnwick carries no Finder extension, so it has no menu.")});
    } else if (!extension_.isExtensionEnabled()) {
        notices.push_back({.kind = NoticeKind::extensionOff,
            .text = bundle_.localized("The Finder reports that the extension of Tarnwick is turned off."),
            .step = NoticeStep::turnOn});
    }
    addOtherCopies(notices);
    addForcedLists(notices);
    return notices;
}

void Notices::addOtherCopies(std::vector<Notice>& notices) const {
    const auto own = bundle_.path();
    for (const auto& path : workspace_.registeredApplications(applicationIdentifier).paths) {
        if (path != own) {
            notices.push_back({.kind = NoticeKind::otherCopy,
                .text =
                    filled(bundle_.localized("The system knows another copy of Tarnwick, at %@."), {path}),
                .step = NoticeStep::showInFinder,
                .path = path});
            return;
        }
    }
}

void Notices::addForcedLists(std::vector<Notice>& notices) const {
    std::string pages;
    for (const auto category : allRuleCategories) {
        if (stores_.isForced(factsOf(category).listKey)) {
            pages.append(pages.empty() ? "" : ", ")
                .append(bundle_.localized(layoutOf(pageOf(category)).title));
        }
    }
    if (!pages.empty()) {
        notices.push_back({.kind = NoticeKind::forcedLists,
            .text = filled(
                bundle_.localized("An administrator sets these lists and undoes changes: %@."), {pages})});
    }
}

} // namespace tarnwick
