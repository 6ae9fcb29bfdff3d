// bench/reports_bench.cpp - 10,000 selections to each report, beside plainly reading the same files.
//
// Run all in one go and compare: what a report costs beyond reading is the ratio, whatever the machine.
#include "fakes/fake_platform.h"
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
        const std::vector<Entry> four = fourPlayers();
        for (int i = 0; i < kPlayers; ++i) {
            Entry entry = four[static_cast<std::size_t>(i % 4)];
            entry.name = "Player " + std::to_string(i);
            folder.put(entry.name + "_AB.THC", selectionFile(entry));
        }
        folder.put("TALLYHOOP.THS", selectionFile(fourPlayersResults()));
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
    const Field field = defaultField();
    ReportMaker maker{pool.dataFolder, platform.services, field};
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
