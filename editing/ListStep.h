#pragma once

#include "editing/ListChange.h"
#include "editing/UndoPart.h"
#include "prefs/TemplateWork.h"

#include <functional>
#include <optional>
#include <string>

namespace tarnwick {

/// What a step is called, and the rows to select when it is taken back and when it is repeated.
struct StepFacts {
    std::string name;
    std::optional<std::size_t> rowBefore;
    std::optional<std::size_t> rowAfter;
    /// One list came in place of another: taken back, the other one comes back whole.
    bool replacesList = false;
};

/// What leads from a list back to what it was before a change, with its template files.
class ListStep final : public UndoPart {
public:
    using Work = std::function<void(const ListStep& step)>;
    using ListNow = std::function<const std::vector<RuleRecord>&()>;

    ListStep(RuleCategory category, ListChange back, TemplateWork files, StepFacts facts, ListNow now,
        Work takeBack)
        : category_(category), back_(std::move(back)), files_(std::move(files)), facts_(std::move(facts)),
          now_(std::move(now)), takeBack_(std::move(takeBack)) {}

    [[nodiscard]] RuleCategory category() const { return category_; }
    [[nodiscard]] const ListChange& back() const { return back_; }
    [[nodiscard]] const TemplateWork& files() const { return files_; }
    /// Those of the change that leads back.
    [[nodiscard]] const StepFacts& facts() const { return facts_; }

    void takeBack() override { takeBack_(*this); }
    void addTo(std::vector<FinalChange>& finals) const override;
    bool fit(FinalChange& later) override;

private:
    void leaveOut(const RuleRecord& record);

    RuleCategory category_;
    ListChange back_;
    TemplateWork files_;
    StepFacts facts_;
    ListNow now_;
    Work takeBack_;
};

} // namespace tarnwick
