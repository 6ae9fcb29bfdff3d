// bench/scoring_bench.cpp - scoring from memory, and the score display with 1,000 and 10,000 players.
#include "bench/large_pool.h"
#include "demo/sample_pool.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/replace_file.h"
#include "files/selection_file.h"
#include "pool/scoring.h"
#include "screens/scores/scores_screen.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

namespace tallyhoop {
namespace {

using bench::randomBrackets;

constexpr Payoffs kPayoffs{1, 2, 4, 8, 12, 16};

/// Times what is done with one item after another, over and over; they are counted.
template <class Item, class Act>
void inTurn(benchmark::State& state, const std::vector<Item>& items, Act act)
{
    std::size_t next = 0;
    for (auto step : state) {
        benchmark::DoNotOptimize(act(items[next]));
        next = next + 1 == items.size() ? 0 : next + 1;
    }
    state.SetItemsProcessed(state.iterations());
}

/// The inner scoring: brackets numbered beforehand.
void ScoreNumbered(benchmark::State& state)
{
    const SelectionLines results = demo::sampleResults();
    std::vector<NumberedPair> pairs;
    for (const SelectionLines& picks : randomBrackets(10'000))
        pairs.push_back(NumberedResults{results}.pairWith(picks));
    inTurn(state, pairs, [](const NumberedPair& pair) { return scoreNumbered(pair, kPayoffs); });
}
BENCHMARK(ScoreNumbered);

/// What scoring does first when names are texts.
void NumberThePicks(benchmark::State& state)
{
    const std::vector<SelectionLines> brackets = randomBrackets(10'000);
    const SelectionLines results = demo::sampleResults();
    const NumberedResults numbered{results};
    inTurn(state, brackets, [&](const SelectionLines& picks) { return numbered.pairWith(picks); });
}
BENCHMARK(NumberThePicks);

/// Names as text, verdict and eliminated teams included.
void ScorePicks(benchmark::State& state)
{
    const std::vector<SelectionLines> brackets = randomBrackets(10'000);
    const SelectionLines results = demo::sampleResults();
    const Scoring scoring{results, kPayoffs};
    inTurn(state, brackets, [&](const SelectionLines& picks) { return scoring.score(picks); });
}
BENCHMARK(ScorePicks);

/// A score display on a folder with this many selections.
class ScoreDisplay
{
public:
    explicit ScoreDisplay(std::int64_t players)
    {
        board.onBoard = demo::sampleResults();
        const std::vector<SelectionLines> brackets = randomBrackets(static_cast<std::size_t>(players));
        for (std::size_t i = 0; i < brackets.size(); ++i)
            scratch.put(fmt::format("Player {:05}_PX.THC", i), selectionFile(brackets[i]));
        screen.load();
    }

    void dragHeading(std::size_t from, std::size_t to)
    {
        screen.msgScoreDisplay.columnPressed(from);
        screen.msgScoreDisplay.columnReleased(to);
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    modTallyhoop shared;
    test::FakeScreens screens;
    test::FakeBoard board{shared};
    ScoresScreen screen{folder, platform.services, shared, screens, board};
};

/// The reference for Calculate: the same files, read and thrown away.
void ReadTheFiles(benchmark::State& state)
{
    const ScoreDisplay display{state.range(0)};
    for (auto step : state)
        for (const FolderFile& file : display.folder.files(".THC"))
            benchmark::DoNotOptimize(readFile(file.path));
}
BENCHMARK(ReadTheFiles)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

void Calculate(benchmark::State& state)
{
    ScoreDisplay display{state.range(0)};
    for (auto step : state)
        display.screen.cmdOk.click();
}
BENCHMARK(Calculate)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

/// One heading to the front and back: two sorts, by score and by file name.
void DragAHeading(benchmark::State& state)
{
    ScoreDisplay display{state.range(0)};
    display.screen.cmdOk.click();
    for (auto step : state) {
        display.dragHeading(2, 0);
        display.dragHeading(0, 2);
    }
}
BENCHMARK(DragAHeading)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tallyhoop
