#pragma once

#include "tests/model/RuleModel.h"
#include "tests/support/SettingsFixture.h"

#include <functional>
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// A first launch, or the launch of a program that has been used for long: a target without folder, common
/// paths, an Others list from before the editors, and a template whose file cannot be made.
enum class Start { fresh, used };

inline void PrintTo(Start start, std::ostream* stream) {
    *stream << (start == Start::fresh ? "fresh" : "used");
}

/// Edits through the controller, each also done to the model, and steps back and forth. What is edited, and
/// how, is asked of `pick`, which gives a number from 0 to below its argument.
class RandomWalk : public SettingsFixture {
protected:
    RandomWalk(Start start, std::function<long(long below)> pick);

    void step();
    /// The lists on the screen, both stores and the template folder are what the model says.
    void check() const;
    /// Takes back all that can be taken back, which leads to what was at the start, and repeats all of it.
    void goBackAndForth();

private:
    /// What undo and redo lead to: the lists, and all that lies in the container.
    struct Moment {
        PerCategory<RuleModel::Records> lists;
        std::set<std::string> templateFiles;
        std::map<std::string, std::string> files;
    };
    [[nodiscard]] Moment moment() const;
    void expectMoment(const Moment& expected) const;
    /// An edit is a step exactly when it changes a record or a file.
    void asStep(const std::function<void()>& edit);
    void undo();
    void redo();
    void takeStep(std::vector<Moment>& from, std::vector<Moment>& to, const std::function<void()>& take);

    void describeFactory();
    void useForLong();

    [[nodiscard]] std::vector<std::string> onScreen(RuleCategory category) const;
    [[nodiscard]] std::vector<std::string> expectedOnScreen(RuleCategory category) const;

    void add(RuleCategory category);
    void remove(RuleCategory category);
    void reset(RuleCategory category);
    void toggle(RuleCategory category);
    void enableAll(RuleCategory category);
    void drop(RuleCategory category);
    void rename(RuleCategory category);
    void editNote();
    void choosePath();
    /// One of those that the menus offer, on any row or none, whether it is possible or not.
    void command(RuleCategory category);
    [[nodiscard]] bool isPossible(RuleCategory category, Command command) const;
    [[nodiscard]] bool mayMove(RuleCategory category, long from, long to) const;
    /// Does to the model what the command does; whether it saves the list.
    bool follow(RuleCategory category, Command command, long row, bool areAllOn);
    /// By typing, or a step of the find bar.
    void find(RuleCategory category);
    [[nodiscard]] std::vector<std::string> searchedTexts(RuleCategory category) const;
    void selectAnyRow(RuleCategory category);

    long pick(long below) { return pick_(below); }
    bool flip() { return pick(2) == 1; }
    std::string freshName() { return "N" + std::to_string(++names_); }
    [[nodiscard]] long rows(RuleCategory category) const {
        return static_cast<long>(model_.list(category).size());
    }
    /// A row, or the place before or behind them all.
    long anyRow(RuleCategory category) { return pick(rows(category) + 2) - 1; }
    void noteSaved(RuleCategory category, bool saved);

    std::function<long(long below)> pick_;
    RuleModel model_;
    /// What was stored before the launch.
    PerCategory<PlistValue> originals_ =
        PerCategory<PlistValue>::madeBy([](RuleCategory) { return PlistValue(false); });
    /// Whether the stored list is the one in memory, and whether the extension has been given it.
    PerCategory<bool> stored_{true, false, false, true, true};
    PerCategory<bool> published_{true, true, false, true, true};
    int names_ = 0;
    std::string sought_;
    double typing_ = 0;
    Moment start_ = moment();
    std::vector<Moment> undo_;
    std::vector<Moment> redo_;
};

} // namespace tarnwick::testing
