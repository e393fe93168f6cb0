#pragma once

#include "prefs/RuleCategory.h"
#include "ui/FileLooks.h"
#include "ui/PictureLooks.h"
#include "ui/RuleFault.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tarnwick {

class FaultDisplay;
class KnownFolders;
class RuleList;
class RuleLists;
class RuleRecord;

/// Finds out what is wrong with the rules of the page that is shown: with those in sight first, then in one
/// pass over the list, in slices between which the run loop goes on. That begins when the page is shown, the
/// list has changed, or the application becomes active, and never during an edit. Nothing is looked at until
/// `watch`.
class RuleHealth {
public:
    RuleHealth(const RuleLists& lists, const KnownFolders& folders, const ApplicationBundle& bundle,
        const FileManager& files, Images& images, RunLoop& runLoop, FaultDisplay& display);

    void watch();
    /// The page of this list is shown now, or one without a list.
    void pageShown(std::optional<RuleCategory> category);
    void listChanged(RuleCategory category);
    void applicationActivated();

    /// What is known of a rule just now; a row that the list does not have has no fault.
    [[nodiscard]] RuleFault fault(RuleCategory category, long row) const;
    /// The next row with a fault below this one, from the top again after the last; nothing when there is
    /// none.
    [[nodiscard]] std::optional<long> nextFault(RuleCategory category, long row) const;

private:
    /// One way over a list.
    struct Pass {
        RuleCategory category = RuleCategory::createNewFile;
        std::size_t next = 0;
        FaultCounts counts = FaultCounts::madeBy([](RuleFault) { return std::size_t(0); });
    };

    void lookSoon(double delaySeconds);
    void begin();
    void goOn(std::size_t pass);
    void finish();
    void look(const RuleRecord& record);
    [[nodiscard]] RuleFault faultOf(RuleCategory category, const RuleRecord& record) const;
    [[nodiscard]] std::string templateFile(const RuleRecord& record) const;

    const RuleLists& lists_;
    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    RunLoop& runLoop_;
    FaultDisplay& display_;
    FileLooks files_;
    PerCategory<PictureLooks> pictures_;

    bool isWatching_ = false;
    std::optional<RuleCategory> shown_;
    /// Empty: there is none.
    std::string templateFolder_;
    Pass pass_;
    /// What has been put off for another pass than this one is void.
    std::size_t passNumber_ = 0;
    PerCategory<std::string> summaries_ =
        PerCategory<std::string>::madeBy([](RuleCategory) { return std::string(); });
};

} // namespace tarnwick
