#pragma once

#include "tests/model/RuleModel.h"
#include "tests/soak/Journal.h"

#include <cstddef>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace tarnwick::soak {

/// One random edit after another. Before each a line in the journal says what its list will be after it, by
/// the rules of the tests' own model; after it another line says that it is done.
class RandomEdits {
public:
    RandomEdits(const std::string& sandbox, unsigned seed);

    /// False when there are no more.
    bool edit();

private:
    using RuleModel = testing::RuleModel;

    /// With a file "name" beside the stores, that is what the first row of every list is called.
    void useGivenName();
    void editOneOf(RuleCategory category);
    void editAtRandom(RuleCategory category);
    /// Takes a step back, or repeats one; without one, nothing.
    void stepBackOrForth();
    void add(RuleCategory category);
    void remove(RuleCategory category);
    void toggle(RuleCategory category);
    void enableAll(RuleCategory category);
    void drop(RuleCategory category);
    void rename(RuleCategory category);
    void editNote();
    void choosePath();
    void reset(RuleCategory category);

    /// What a step of undo or redo leads to.
    struct Past {
        RuleCategory category;
        RuleModel::Records records;
        std::set<std::string> files;
    };
    void takeStep(const char* name, std::vector<Past>& from, std::vector<Past>& to, void (*take)());
    [[nodiscard]] Past present(RuleCategory category) { return {category, list(category), model_.files}; }

    /// What is chosen to be added: it makes the item, has the model add it, and gives its path; empty: none.
    std::string makeItem(RuleCategory category);
    std::string makeTemplate();
    std::string makePicture();
    std::string makeAction();
    /// As the factory's list has it; empty when it does not.
    [[nodiscard]] PlistData pictureOfAction(const std::string& name) const;

    /// Journal: "edit NAME LIST SYNCHRONISES STORED PUBLISHED", the last two checksums; then the edit; then
    /// "done".
    template <class Edit>
    void perform(const char* name, RuleCategory category, bool synchronises, bool saved, const Edit& edit) {
        if (saved) {
            announce(name, category, synchronises);
            edit();
            journal_.write("done");
        }
    }
    void announce(const char* name, RuleCategory category, bool synchronises);

    std::size_t pick(std::size_t below) { return random_() % below; }
    RuleModel::Records& list(RuleCategory category) { return model_.list(category); }
    long row(RuleCategory category) { return static_cast<long>(pick(list(category).size())); }
    /// One that no other item of the sandbox has.
    std::string freshName();

    std::string sandbox_;
    std::string sources_;
    std::mt19937 random_;
    Journal journal_;
    RuleModel model_;
    bool ready_ = false;
    /// How many edits are tried (-1: no end), and in which lists (their numbers; empty: all).
    long most_;
    std::string lists_;
    long count_ = 0;
    long names_ = 0;
    long templateResets_ = 0;
    std::vector<Past> undo_;
    std::vector<Past> redo_;
};

} // namespace tarnwick::soak
