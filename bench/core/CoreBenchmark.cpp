// What the core takes for each of its operations, over lists of growing length, with and without images.

#include "bench/core/LaunchedSettings.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RulePublisher.h"
#include "tests/support/LongList.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <string>

namespace tarnwick::bench {
namespace {

constexpr auto category = RuleCategory::customIcon;
constexpr std::int64_t imageSize = 1024 * 1024;

std::size_t recordsOf(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

std::size_t imageBytesOf(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(1));
}

long middleRow(const benchmark::State& state) {
    return static_cast<long>(state.range(0) / 2);
}

void lists(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgNames({"records", "image"});
    for (const std::int64_t image : {std::int64_t{0}, imageSize}) {
        for (const std::int64_t records : {10, 100, 1'000, 10'000, 100'000}) {
            benchmark->Args({records, image});
        }
    }
    benchmark->Unit(benchmark::kMicrosecond);
}

/// A launch over stored lists, up to the lists published.
void load(benchmark::State& state) {
    const auto list = testing::makeLongList(recordsOf(state), imageBytesOf(state));
    const auto stored = list.toPlist();
    for (auto unused : state) {
        state.PauseTiming();
        testing::InMemoryPlatform platform;
        testing::InMemoryWindow window(platform.log, platform.preferences);
        platform.preferences.local.insert_or_assign(std::string(factsOf(category).listKey), stored);
        {
            SettingsController controller(platform.ports(), window);
            state.ResumeTiming();
            controller.awakeFromNib();
            platform.runLoop.runMain();
            benchmark::DoNotOptimize(controller.rows().count(category));
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}
BENCHMARK(load)->Apply(lists);

/// A row's check box, with everything that it stores and publishes.
void toggle(benchmark::State& state) {
    LaunchedSettings settings(recordsOf(state), imageBytesOf(state));
    bool on = false;
    for (auto unused : state) {
        settings.controller().set(RuleCategory::customIcon, middleRow(state), field::enable, on);
        on = !on;
        settings.forgetCalls();
    }
}
BENCHMARK(toggle)->Apply(lists);

/// A row dragged from the first place to the last but one and back.
void reorder(benchmark::State& state) {
    LaunchedSettings settings(recordsOf(state), imageBytesOf(state));
    const auto last = static_cast<long>(recordsOf(state)) - 2;
    bool down = true;
    for (auto unused : state) {
        settings.controller().acceptDrop(category, category, down ? 0 : last, down ? last : 0);
        down = !down;
        settings.forgetCalls();
    }
}
BENCHMARK(reorder)->Apply(lists);

/// A name edited in its row.
void rename(benchmark::State& state) {
    LaunchedSettings settings(recordsOf(state), imageBytesOf(state));
    const std::array<std::string, 2> names{"A name for an icon", "Another name for an icon"};
    std::size_t turn = 0;
    for (auto unused : state) {
        settings.controller().textEdited("CustomIconName", middleRow(state), names[turn]);
        turn = 1 - turn;
        settings.forgetCalls();
    }
}
BENCHMARK(rename)->Apply(lists);

/// The enabled records handed to the extension.
void publish(benchmark::State& state) {
    testing::InMemoryPlatform platform;
    LocalPreferences local;
    local.open(platform.preferences);
    RuleLists all;
    all[category] = testing::makeLongList(recordsOf(state), imageBytesOf(state));
    RulePublisher publisher(platform.preferences, local, all);
    for (auto unused : state) {
        publisher.publish(category);
        platform.log.clear();
    }
}
BENCHMARK(publish)->Apply(lists);

/// Every cell of every row. The window builds only the rows in sight.
void buildRows(benchmark::State& state) {
    LaunchedSettings settings(recordsOf(state), imageBytesOf(state));
    const auto rows = static_cast<long>(recordsOf(state));
    for (auto unused : state) {
        for (long row = 0; row < rows; ++row) {
            for (const auto* column : {"Enable", "Icon", "CustomIconName", "Size"}) {
                benchmark::DoNotOptimize(settings.controller().rows().cell(category, column, row));
            }
        }
    }
}
BENCHMARK(buildRows)->Apply(lists);

} // namespace
} // namespace tarnwick::bench

BENCHMARK_MAIN();
