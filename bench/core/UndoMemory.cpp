// What the steps that can be taken back keep: the heap with those of a thousand edits over ten thousand
// records with pictures, less the heap without them.

#include "bench/core/LaunchedSettings.h"

#include <cstdio>
#include <malloc.h>
#include <random>
#include <string>

namespace tarnwick::bench {
namespace {

constexpr auto category = RuleCategory::customIcon;
constexpr std::size_t records = 10'000;
constexpr std::size_t imageBytes = 4096;
constexpr int edits = 1'000;
constexpr double megabyte = 1e6;

double heapInUse() {
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd) / megabyte;
}

/// Edits as they come, and one in twenty of the whole list.
class Edits {
public:
    explicit Edits(LaunchedSettings& settings) : settings_(settings) {}

    void makeOne() {
        auto& controller = settings_.controller();
        const auto row = pick(rows());
        switch (pick(20)) {
        case 0:
            settings_.switchAll(pick(2) == 0);
            break;
        case 1:
        case 2:
            settings_.removeRow(row);
            break;
        case 3:
        case 4:
            settings_.addPicture();
            break;
        case 5:
        case 6:
        case 7:
        case 8:
            controller.acceptDrop(category, category, row, pick(rows()));
            break;
        case 9:
        case 10:
        case 11:
        case 12:
            controller.textEdited("CustomIconName", row, "Name " + std::to_string(random_()));
            break;
        default:
            controller.set(category, row, field::enable, pick(2) == 0);
            break;
        }
    }

private:
    [[nodiscard]] long rows() const { return settings_.controller().rows().count(category); }
    long pick(long below) { return std::uniform_int_distribution<long>(0, below - 1)(random_); }

    LaunchedSettings& settings_;
    std::mt19937 random_{1};
};

void measure() {
    LaunchedSettings settings(records, imageBytes);
    Edits random(settings);
    for (int edit = 0; edit < edits; ++edit) {
        random.makeOne();
        settings.forgetLog();
    }
    const auto steps = settings.steps();
    const auto with = heapInUse();
    settings.forgetSteps();
    std::printf("\nUndo: %zu steps of %d edits over %zu records with pictures keep %.1f MB\n", steps, edits,
        records, with - heapInUse());
}

} // namespace
} // namespace tarnwick::bench

int main() {
    tarnwick::bench::measure();
    return 0;
}
