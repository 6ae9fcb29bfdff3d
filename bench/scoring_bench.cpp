// bench/scoring_bench.cpp - scoring from memory, and the score display with 1,000 and 10,000 players.
#include "bench/large_pool.h"
#include "demo/sample_pool.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/replace_file.h"
#include "files/selection_file.h"
#include "files/selection_reader.h"
#include "pool/scoring.h"
#include "screens/scores/scores_screen.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {
namespace {

using bench::randomBrackets;

constexpr Payoffs kPayoffs{1, 2, 4, 8, 12, 16};

const Bracket& results()
{
    static const Bracket bracket = demo::sampleResults().picks;
    return bracket;
}

ByPosition<std::string_view> teamsOf(const Bracket& bracket)
{
    ByPosition<std::string_view> teams;
    for (const Position position : allPositions())
        teams[position] = bracket.at(position);
    return teams;
}

/// Brackets as files give them: numbered like the results.
std::vector<Bracket> bracketsOfFiles()
{
    std::vector<Bracket> brackets = randomBrackets(10'000);
    for (Bracket& bracket : brackets)
        bracket = Bracket::of(teamsOf(bracket), results());
    return brackets;
}

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

/// As every report and the score display do: the brackets have the numbers of the results.
void ScoreNumbered(benchmark::State& state)
{
    inTurn(state, bracketsOfFiles(), [](const Bracket& picks) { return score(picks, results(), kPayoffs); });
}
BENCHMARK(ScoreNumbered);

/// Brackets with a table of names of their own, as one with an unknown team has.
void ScoreWithOwnTable(benchmark::State& state)
{
    std::vector<Bracket> brackets = randomBrackets(10'000);
    for (Bracket& bracket : brackets)
        bracket = Bracket::of(teamsOf(bracket));
    inTurn(state, brackets, [](const Bracket& picks) { return score(picks, results(), kPayoffs); });
}
BENCHMARK(ScoreWithOwnTable);

/// The bytes of 10,000 files, without the disk.
std::vector<std::string> filesOf(const std::vector<Bracket>& brackets)
{
    std::vector<std::string> files;
    files.reserve(brackets.size());
    for (const Bracket& bracket : brackets)
        files.push_back(selectionFile({bracket, "PX", "Player", "140", ""}));
    return files;
}

/// From the bytes of a file to a numbered bracket.
void ReadAPick(benchmark::State& state)
{
    const SelectionReader reader{results()};
    inTurn(state, filesOf(randomBrackets(10'000)), [&](const std::string& bytes) { return reader.read(bytes); });
}
BENCHMARK(ReadAPick);

/// The same, and scored.
void ScorePicks(benchmark::State& state)
{
    const SelectionReader reader{results()};
    inTurn(state, filesOf(randomBrackets(10'000)),
           [&](const std::string& bytes) { return score(reader.read(bytes).value.picks, results(), kPayoffs); });
}
BENCHMARK(ScorePicks);

/// A score display on a folder with this many selections.
class ScoreDisplay
{
public:
    explicit ScoreDisplay(std::int64_t players)
    {
        const std::vector<Bracket> brackets = randomBrackets(static_cast<std::size_t>(players));
        for (std::size_t i = 0; i < brackets.size(); ++i)
            scratch.put(fmt::format("Player {:05}_PX.THC", i), selectionFile({brackets[i], "", "", "", ""}));
        screen.load();
    }

    void dragHeading(std::size_t from, std::size_t to)
    {
        screen.msgScoreDisplay.columnPressed(from);
        screen.msgScoreDisplay.columnReleased(to);
        screen.showState();
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    test::FakeScreens screens;
    Field field = demo::sampleField();
    std::optional<PlayerScore> marked;
    ScoresScreen screen{folder, platform.services, screens, field, results(), marked};
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
