#include "editing/UndoSteps.h"

#include "platform/UndoHistory.h"

#include <utility>

namespace tarnwick {
namespace {

class OtherPart final : public UndoPart {
public:
    explicit OtherPart(std::function<void()> takeBack) : takeBack_(std::move(takeBack)) {}

    void takeBack() override { takeBack_(); }
    void addTo(std::vector<FinalChange>& /*finals*/) const override {}
    bool fit(FinalChange& /*later*/) override { return true; }

private:
    std::function<void()> takeBack_;
};

} // namespace

void UndoSteps::record(std::string_view name, std::shared_ptr<UndoPart> part) {
    const Group group(*this, std::string(name));
    open_->parts_.push_back(std::move(part));
}

void UndoSteps::record(std::string_view name, std::function<void()> takeBack) {
    record(name, std::make_shared<OtherPart>(std::move(takeBack)));
}

void UndoSteps::recordFinal(std::shared_ptr<UndoPart> part) {
    const Group group(*this, {});
    open_->parts_.push_back(std::move(part));
    open_->isFinal_ = true;
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
    if (isFinal_) {
        steps_.fitEarlierSteps(parts_);
        steps_.registerAnew();
    } else if (!parts_.empty()) {
        steps_.add(std::make_shared<Step>(Step{std::move(name_), std::move(parts_)}));
    }
}

void UndoSteps::add(const std::shared_ptr<Step>& step) {
    if (direction_ != Direction::back) {
        earlier_.push_back(step);
    }
    const auto& name = step->name;
    history_.registerUndo(name, takingBack(step));
}

std::function<void()> UndoSteps::takingBack(std::shared_ptr<Step> step) {
    return [this, step = std::move(step)] { takeBack(step); };
}

void UndoSteps::takeBack(const std::shared_ptr<Step>& step) {
    const auto isBack = !earlier_.empty() && earlier_.back().lock() == step;
    direction_ = isBack ? Direction::back : Direction::forthAgain;
    if (isBack) {
        earlier_.pop_back();
    }
    {
        const Group group(*this, step->name);
        for (auto part = step->parts.rbegin(); part != step->parts.rend(); ++part) {
            (*part)->takeBack();
        }
    }
    direction_ = Direction::forth;
}

void UndoSteps::fitEarlierSteps(const std::vector<std::shared_ptr<UndoPart>>& final) {
    if (direction_ == Direction::back) {
        // Back where they belong.
        return;
    }
    std::vector<FinalChange> changes;
    for (auto part = final.rbegin(); part != final.rend(); ++part) {
        (*part)->addTo(changes);
    }
    for (auto earlier = earlier_.rbegin(); earlier != earlier_.rend(); ++earlier) {
        const auto step = earlier->lock();
        if (!step) {
            continue;
        }
        std::vector<std::shared_ptr<UndoPart>> kept;
        for (auto part = step->parts.rbegin(); part != step->parts.rend(); ++part) {
            bool isLeft = true;
            for (auto& change : changes) {
                isLeft = (*part)->fit(change) && isLeft;
            }
            if (isLeft) {
                kept.insert(kept.begin(), *part);
            }
        }
        step->parts = std::move(kept);
    }
}

void UndoSteps::registerAnew() {
    std::vector<UndoHistory::Step> steps;
    std::vector<std::weak_ptr<Step>> left;
    for (const auto& earlier : earlier_) {
        if (auto step = earlier.lock(); step && !step->parts.empty()) {
            left.push_back(step);
            const auto name = step->name;
            steps.push_back({name, takingBack(std::move(step))});
        }
    }
    earlier_ = std::move(left);
    history_.replaceAll(std::move(steps));
}

} // namespace tarnwick
