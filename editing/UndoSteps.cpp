#include "editing/UndoSteps.h"

#include "platform/UndoHistory.h"

#include <utility>

namespace tarnwick {

void UndoSteps::record(std::string_view name, std::function<void()> takeBack) {
    if (open_) {
        open_->parts_.push_back(std::move(takeBack));
    } else {
        history_.registerUndo(name, std::move(takeBack));
    }
}

void UndoSteps::forgetAll() {
    if (open_) {
        open_->isLost_ = true;
    } else {
        history_.clear();
    }
}

UndoSteps::Group::Group(UndoSteps& steps, std::string name) : steps_(steps), name_(std::move(name)) {
    if (!steps_.open_) {
        steps_.open_ = this;
    }
}

UndoSteps::Group::~Group() {
    if (steps_.open_ != this) {
        return;
    }
    steps_.open_ = nullptr;
    if (isLost_) {
        steps_.forgetAll();
    } else if (!parts_.empty()) {
        steps_.record(name_, [&steps = steps_, name = name_, parts = std::move(parts_)] {
            const Group group(steps, name);
            for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
                (*part)();
            }
        });
    }
}

} // namespace tarnwick
