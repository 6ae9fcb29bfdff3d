// tests/screens/scores/scores_screen_fixture.h - the list of scores over a scratch folder, with results for one region.
#pragma once

#include "screens/scores/scores_screen.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "pool/sample_brackets.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {

struct ScoreDisplay : ::testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    Field field = defaultField(); // its payoffs: 1, 2, 4, 8, 12, 16
    // Region 1 is played: its upper teams won, 8 * 1 + 4 * 2 + 2 * 4 + 8 = 32 points.
    Bracket results = without(everyUpperTeamWins(), 31, 126);
    std::optional<PlayerScore> marked;
    ScoresScreen screen{folder, platform.services, screens, field, results, marked};

    void putPlayer(const std::string& fileName, const std::string& initials, const std::string& name,
                   const Bracket& picks, const std::string& finalPoints = "145")
    {
        scratch.put(fileName, selectionFile({picks, initials, name, finalPoints, {}}));
    }

    /// Smith has everything right (32 of 168), Adams everything wrong in region 1 (0), Brown the first round of it (8).
    void putThreePlayers()
    {
        putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
        putPlayer("Adams_QA.THC", "QA", "Adams", everyLowerTeamWins());
        putPlayer("Brown_TB.THC", "TB", "Brown", without(everyUpperTeamWins(), 24, 30));
    }

    std::vector<std::string> column(std::size_t index) const
    {
        std::vector<std::string> cells;
        for (const auto& row : screen.msgScoreDisplay.rows)
            cells.push_back(row.at(index));
        return cells;
    }

    std::vector<std::string> headings() const
    {
        std::vector<std::string> texts;
        for (const ui::GridColumn& gridColumn : screen.msgScoreDisplay.columns)
            texts.push_back(gridColumn.heading);
        return texts;
    }

    void open()
    {
        screen.load();
        screen.showState();
    }

    void dragHeading(std::size_t from, std::optional<std::size_t> to)
    {
        screen.msgScoreDisplay.columnPressed(from);
        screen.msgScoreDisplay.columnReleased(to);
        screen.showState();
    }

    void setPayoffs(const std::array<std::string, kRounds>& texts) { field.payoffs = PayoffTexts{texts}; }

    /// Marks that an earlier click has left.
    void markSomebody()
    {
        marked.emplace();
        marked->verdicts.values.fill(Verdict::Open);
    }
};

} // namespace tallyhoop::test
