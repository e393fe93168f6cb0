#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// Everything that the platform was asked to change, in order, a line each: "local set KEY",
/// "shared synchronise", "copy FROM -> TO" ...
class CallLog {
public:
    /// Told of each line before what it says takes place.
    std::function<void(const std::string& line)> observer;

    void add(std::string line) {
        if (observer) {
            observer(line);
        }
        lines_.push_back(std::move(line));
    }
    void clear() { lines_.clear(); }
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }
    /// The lines that begin with `prefix`.
    [[nodiscard]] std::vector<std::string> linesWith(const std::string& prefix) const {
        std::vector<std::string> found;
        for (const auto& line : lines_) {
            if (line.rfind(prefix, 0) == 0) {
                found.push_back(line);
            }
        }
        return found;
    }
    [[nodiscard]] bool holds(const std::string& line) const {
        for (const auto& other : lines_) {
            if (other == line) {
                return true;
            }
        }
        return false;
    }

private:
    std::vector<std::string> lines_;
};

} // namespace tarnwick::testing
