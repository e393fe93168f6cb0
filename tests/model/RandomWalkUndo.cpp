#include "tests/model/RandomWalk.h"

#include <utility>

namespace tarnwick::testing {
namespace {

bool areEqual(const PerCategory<RuleModel::Records>& some, const PerCategory<RuleModel::Records>& others) {
    for (const auto category : allRuleCategories) {
        if (some[category] != others[category]) {
            return false;
        }
    }
    return true;
}

} // namespace

RandomWalk::Moment RandomWalk::moment() const {
    Moment now{model_.lists, model_.files, {}};
    for (const auto& file : platform_.files.files) {
        if (file.first.starts_with("/container/")) {
            now.files.insert(file);
        }
    }
    return now;
}

void RandomWalk::expectMoment(const Moment& expected) const {
    const auto now = moment();
    EXPECT_TRUE(areEqual(now.lists, expected.lists));
    EXPECT_EQ(now.files, expected.files);
}

void RandomWalk::asStep(const std::function<void()>& edit) {
    const auto& history = platform_.undoHistory;
    auto before = moment();
    const auto steps = history.undoCount();
    edit();
    const auto after = moment();
    const auto isStep = !areEqual(before.lists, after.lists) || before.files != after.files;
    EXPECT_EQ(history.undoCount(), steps + (isStep ? 1 : 0));
    if (isStep) {
        undo_.push_back(std::move(before));
        redo_.clear();
    }
    EXPECT_EQ(history.redoCount(), redo_.size());
}

void RandomWalk::undo() {
    takeStep(undo_, redo_, [this] { platform_.undoHistory.undo(); });
}

void RandomWalk::redo() {
    takeStep(redo_, undo_, [this] { platform_.undoHistory.redo(); });
}

void RandomWalk::takeStep(
    std::vector<Moment>& from, std::vector<Moment>& to, const std::function<void()>& take) {
    if (!from.empty()) {
        to.push_back(moment());
        model_.lists = from.back().lists;
        model_.files = from.back().templateFiles;
    }
    take();
    if (!from.empty()) {
        expectMoment(from.back());
        from.pop_back();
    }
    EXPECT_EQ(platform_.undoHistory.undoCount(), undo_.size());
    EXPECT_EQ(platform_.undoHistory.redoCount(), redo_.size());
}

void RandomWalk::goBackAndForth() {
    while (!redo_.empty()) {
        redo();
    }
    const auto last = moment();
    while (!undo_.empty()) {
        undo();
    }
    check();
    expectMoment(start_);
    while (!redo_.empty()) {
        redo();
    }
    check();
    expectMoment(last);
}

} // namespace tarnwick::testing
