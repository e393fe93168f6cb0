#include "tests/soak/EditingApplication.h"
#include "tests/soak/RandomEdits.h"

#include <utility>

namespace tarnwick::soak {

void RandomEdits::editOneOf(RuleCategory category) {
    ++count_;
    if (pick(4) == 0) {
        return stepBackOrForth();
    }
    auto before = present(category);
    const auto resets = templateResets_;
    editAtRandom(category);
    // The templates' files are laid out anew also where the list is the same.
    if (before.records != list(category) || before.files != model_.files || resets != templateResets_) {
        undo_.push_back(std::move(before));
        redo_.clear();
    }
}

void RandomEdits::stepBackOrForth() {
    if (pick(3) == 0) {
        takeStep("redo", redo_, undo_, redo);
    } else {
        takeStep("undo", undo_, redo_, undo);
    }
}

void RandomEdits::takeStep(const char* name, std::vector<Past>& from, std::vector<Past>& to, void (*take)()) {
    if (from.empty()) {
        return;
    }
    auto past = std::move(from.back());
    from.pop_back();
    to.push_back(present(past.category));
    list(past.category) = std::move(past.records);
    model_.files = std::move(past.files);
    perform(name, past.category, true, true, take);
}

} // namespace tarnwick::soak
