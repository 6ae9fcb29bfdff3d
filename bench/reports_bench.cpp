// bench/reports_bench.cpp - 10,000 selections to each report, beside plainly reading the same files.
//
// Run all in one go and compare: what a report costs beyond reading is the ratio, whatever the machine.
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "files/replace_file.h"
#include "reports/report_pool.h"
#include "screens/reports/report_maker.h"

#include <benchmark/benchmark.h>

namespace tallyhoop::test {
namespace {

constexpr int kPlayers = 10000;

/// A pool of many players, made once for all benchmarks.
struct LargePool {
    ScratchFolder folder;
    DataFolder dataFolder = folder.folder();
    std::vector<FolderFile> files;

    LargePool()
    {
        const ReadPool four = fourPlayers();
        for (int i = 0; i < kPlayers; ++i) {
            SelectionLines lines = four.players[static_cast<std::size_t>(i % 4)].lines;
            lines[selection_line::kName] = "Player " + std::to_string(i);
            folder.put("Player " + std::to_string(i) + "_AB.THC", selectionFile(lines));
        }
        folder.put("TALLYHOOP.THS", fourPlayersResults().file());
        files = dataFolder.files(".THC");
    }
};

LargePool& largePool()
{
    static LargePool pool;
    return pool;
}

void plainlyReading(benchmark::State& state)
{
    const LargePool& pool = largePool();
    for (auto _ : state)
        for (const FolderFile& file : pool.files)
            benchmark::DoNotOptimize(readFile(file.path));
}
BENCHMARK(plainlyReading)->Unit(benchmark::kMillisecond);

void makingReport(benchmark::State& state)
{
    const LargePool& pool = largePool();
    FakePlatform platform;
    modTallyhoop shared;
    FakeBoard board{shared};
    ReportMaker maker{pool.dataFolder, platform.services, board};
    const ReportKind& kind = reportTable()[static_cast<std::size_t>(state.range(0))];
    for (auto _ : state) {
        MadeReport made = maker.make(kind, "Office Pool 2001", pool.files);
        if (!std::holds_alternative<ReportLines>(made))
            state.SkipWithError("no report was made");
    }
    state.SetLabel(kind.name);
}
BENCHMARK(makingReport)->Arg(0)->DenseRange(2, 6)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tallyhoop::test
