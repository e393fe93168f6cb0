// What the core takes for each of its operations, over lists of growing length, with and without images.

#include "bench/core/LaunchedSettings.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RulePublisher.h"
#include "tests/support/LongList.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

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

/// What every row has, in two forms, so that each is another text than the one before.
constexpr std::array<std::string_view, 2> wanted{"NUMBER 1", "number 1"};

/// A text typed into the find bar that every row has: all rows are looked through, and counted.
void search(benchmark::State& state) {
    LaunchedSettings settings(recordsOf(state), imageBytesOf(state));
    auto& finding = settings.controller().finding();
    std::size_t turn = 0;
    for (auto unused : state) {
        finding.lookFor(category, wanted[turn]);
        benchmark::DoNotOptimize(finding.count(category));
        turn = 1 - turn;
        settings.forgetCalls();
    }
}
BENCHMARK(search)->Apply(lists);

/// On to the next row.
void searchStep(benchmark::State& state) {
    LaunchedSettings settings(recordsOf(state), imageBytesOf(state));
    auto& finding = settings.controller().finding();
    finding.lookFor(category, wanted[0]);
    for (auto unused : state) {
        finding.step(category, SearchStep::next);
        benchmark::DoNotOptimize(finding.count(category));
        settings.forgetCalls();
    }
}
BENCHMARK(searchStep)->Apply(lists);

/// The same after the list has changed, which is no part of the time: every row is folded anew.
void searchStepAfterChange(benchmark::State& state) {
    LaunchedSettings settings(recordsOf(state), imageBytesOf(state));
    auto& finding = settings.controller().finding();
    finding.lookFor(category, wanted[0]);
    bool on = false;
    for (auto unused : state) {
        state.PauseTiming();
        settings.controller().set(category, middleRow(state), field::enable, on);
        on = !on;
        settings.forgetCalls();
        state.ResumeTiming();
        finding.step(category, SearchStep::next);
        benchmark::DoNotOptimize(finding.count(category));
    }
}
BENCHMARK(searchStepAfterChange)->Apply(lists);

/// What cannot be left out of a search: the bytes of every name looked through for those of a text.
void scan(benchmark::State& state) {
    const auto list = testing::makeLongList(recordsOf(state), imageBytesOf(state));
    for (auto unused : state) {
        std::size_t found = 0;
        for (const auto& record : list) {
            found += record.text(field::displayName).find(wanted[1]) != std::string_view::npos ? 1 : 0;
        }
        benchmark::DoNotOptimize(found);
    }
}
BENCHMARK(scan)->Apply(lists);

} // namespace
} // namespace tarnwick::bench

BENCHMARK_MAIN();
