#include "tests/soak/RandomEdits.h"

#include "prefs/PreferenceKeys.h"
#include "tests/model/PageFacts.h"
#include "tests/soak/Canonical.h"
#include "tests/soak/EditingApplication.h"
#include "tests/soak/StoredState.h"

#include <cstdlib>
#include <fstream>
#include <unistd.h>

namespace tarnwick::soak {
namespace {

using testing::haveEnableAll;
using testing::haveReset;
using testing::haveRowSwitches;
using testing::nameFields;
using testing::nameMarks;

/// The lists stay of a size.
constexpr std::size_t shortestList = 10;

std::string sum(const std::string& text) {
    return std::to_string(checksum(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

/// Its remove button is disabled.
bool isProtected(const PlistDictionary& record) {
    const auto action = testing::textIn(record, "Action");
    return testing::isFixed(record) || action == "Screenshots by Snapfin" ||
           action == "Pin\u3001Annotation by Snapfin";
}

} // namespace

RandomEdits::RandomEdits(const std::string& sandbox, unsigned seed)
    : sandbox_(sandbox), sources_(sandbox + "/sources"), random_(seed),
      journal_(sandbox + "/" + setting("TARNWICK_SOAK_JOURNAL", "journal")),
      most_(std::atol(setting("TARNWICK_SOAK_EDITS", "-1").c_str())),
      lists_(setting("TARNWICK_SOAK_LISTS", "")) {}

bool RandomEdits::edit() {
    if (!ready_) {
        model_ = stateOf(sandbox_);
        useGivenName();
        journal_.write("ready");
        ready_ = true;
    }
    if (count_ == most_) {
        return false;
    }
    editOneOf(lists_.empty()
                  ? allRuleCategories[pick(5)]
                  : allRuleCategories[static_cast<std::size_t>(lists_[pick(lists_.size())] - '0')]);
    return true;
}

void RandomEdits::useGivenName() {
    std::ifstream file(sandbox_ + "/name", std::ios::binary);
    if (!file) {
        return;
    }
    const std::string name{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    for (const auto* field : nameFields) {
        controller().textEdited(field, 0, name);
    }
    controller().textEdited("OthersNote", 0, name);
}

void RandomEdits::editAtRandom(RuleCategory category) {
    switch (pick(8)) {
    case 0:
    case 1:
        return add(category);
    case 2:
        return remove(category);
    case 3:
        return toggle(category);
    case 4:
        return enableAll(category);
    case 5:
        return drop(category);
    case 6:
        return pick(12) == 0 ? reset(category) : rename(category);
    default:
        break;
    }
    if (category == RuleCategory::copyFilesTo) {
        choosePath();
    } else if (category == RuleCategory::others) {
        editNote();
    } else {
        remove(category);
    }
}

void RandomEdits::announce(const char* name, RuleCategory category, bool synchronises) {
    journal_.write(std::string("edit ") + name + " " + std::string(factsOf(category).listKey) +
                   (synchronises ? " 1 " : " 0 ") + sum(canonical(list(category), false)) + " " +
                   sum(canonical(list(category), true)));
}

std::string RandomEdits::freshName() {
    return "N" + std::to_string(getpid()) + "-" + std::to_string(++names_);
}

void RandomEdits::remove(RuleCategory category) {
    if (list(category).size() < shortestList) {
        return;
    }
    const auto place = row(category);
    if (isProtected(list(category)[static_cast<std::size_t>(place)])) {
        return;
    }
    selectRow(category, place);
    perform("remove", category, true, model_.remove(category, place), [&] { controller().remove(category); });
}

void RandomEdits::toggle(RuleCategory category) {
    if (!haveRowSwitches[category] || list(category).empty()) {
        return;
    }
    const auto inMainMenu = category == RuleCategory::createNewFile && pick(4) == 0;
    const auto place = row(category);
    const auto on = pick(2) == 0;
    perform("toggle", category, true,
        model_.set(category, place, inMainMenu ? "enableMainMenu" : "enable", on), [&] {
            if (inMainMenu) {
                controller().set(RuleCategory::createNewFile, place, field::enableMainMenu, on);
            } else {
                controller().set(category, place, field::enable, on);
            }
        });
}

void RandomEdits::enableAll(RuleCategory category) {
    if (!haveEnableAll[category]) {
        return;
    }
    const auto on = pick(2) == 0;
    userSets(factsOf(category).enableAllKey, on);
    perform("enable-all", category, false, model_.enableAll(category, on),
        [&] { controller().enableAll(category); });
}

void RandomEdits::drop(RuleCategory category) {
    if (list(category).size() < 2) {
        return;
    }
    const auto from = row(category);
    const auto to = row(category);
    perform("drop", category, false, model_.drop(category, from, to),
        [&] { controller().acceptDrop(category, category, from, to); });
}

void RandomEdits::rename(RuleCategory category) {
    if (list(category).empty()) {
        return;
    }
    const auto place = row(category);
    const auto name = freshName();
    perform("rename", category, true, model_.rename(category, place, nameMarks[category], name),
        [&] { controller().textEdited(nameFields[category], place, name); });
}

void RandomEdits::editNote() {
    if (list(RuleCategory::others).empty()) {
        return;
    }
    const auto place = row(RuleCategory::others);
    const auto text = freshName();
    perform("note", RuleCategory::others, true, model_.editNote(place, text),
        [&] { controller().textEdited("OthersNote", place, text); });
}

void RandomEdits::choosePath() {
    if (list(RuleCategory::copyFilesTo).empty()) {
        return;
    }
    const auto place = row(RuleCategory::copyFilesTo);
    const auto path = sources_ + "/" + freshName();
    answerPanelsWith({path});
    perform("choose-path", RuleCategory::copyFilesTo, true, model_.choosePath(place, path),
        [&] { controller().selectPath(RuleCategory::copyFilesTo, place); });
}

void RandomEdits::reset(RuleCategory category) {
    // The factory's lists are known after a first launch only.
    if (!haveReset[category] || model_.factory[RuleCategory::createNewFile].empty()) {
        return;
    }
    templateResets_ += category == RuleCategory::createNewFile ? 1 : 0;
    perform("reset", category, true, model_.reset(category), [&] { controller().reset(category); });
}

} // namespace tarnwick::soak
