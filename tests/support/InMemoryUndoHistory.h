#pragma once

#include "platform/UndoHistory.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::testing {

/// Two stacks of steps, and the user's two menu items.
class InMemoryUndoHistory final : public UndoHistory {
public:
    void registerUndo(std::string_view name, std::function<void()> takeBack) override {
        if (current_ == Direction::none) {
            redo_.clear();
        }
        (current_ == Direction::undo ? redo_ : undo_).push_back({std::string(name), std::move(takeBack)});
    }
    void replaceAll(std::vector<Step> steps) override {
        if (current_ != Direction::none) {
            replacement_ = std::move(steps);
            return;
        }
        undo_ = std::move(steps);
        redo_.clear();
    }

    /// What the user asks for; without a step, nothing happens.
    void undo() { take(undo_, Direction::undo); }
    void redo() { take(redo_, Direction::redo); }

    [[nodiscard]] std::size_t undoCount() const { return undo_.size(); }
    [[nodiscard]] std::size_t redoCount() const { return redo_.size(); }
    /// The names of the steps, the next one last.
    [[nodiscard]] std::vector<std::string> undoNames() const { return namesOf(undo_); }
    [[nodiscard]] std::vector<std::string> redoNames() const { return namesOf(redo_); }

private:
    enum class Direction { none, undo, redo };

    void take(std::vector<Step>& from, Direction direction) {
        if (from.empty()) {
            return;
        }
        const auto step = std::move(from.back());
        from.pop_back();
        current_ = direction;
        step.takeBack();
        current_ = Direction::none;
        if (auto steps = std::exchange(replacement_, std::nullopt)) {
            replaceAll(*std::move(steps));
        }
    }
    static std::vector<std::string> namesOf(const std::vector<Step>& steps) {
        std::vector<std::string> names;
        for (const auto& step : steps) {
            names.push_back(step.name);
        }
        return names;
    }

    std::vector<Step> undo_;
    std::vector<Step> redo_;
    Direction current_ = Direction::none;
    std::optional<std::vector<Step>> replacement_;
};

} // namespace tarnwick::testing
