// tests/screens/scores/scores_screen_fixture.h - the score display over a scratch folder, with results for one region.
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
    modTallyhoop state;
    FakeScreens screens;
    FakeBoard board{state};
    ScoresScreen screen{folder, platform.services, state, screens, board};

    ScoreDisplay()
    {
        // Region 1 is played: its upper teams won, 8 * 1 + 4 * 2 + 2 * 4 + 8 = 32 points.
        board.onBoard = without(everyUpperTeamWins(), 32, 127);
    }

    void putPlayer(const std::string& fileName, const std::string& initials, const std::string& name,
                   SelectionLines lines, const std::string& finalPoints = "145")
    {
        lines[selection_line::kInitials] = initials;
        lines[selection_line::kName] = name;
        lines[selection_line::kFinalPoints] = finalPoints;
        scratch.put(fileName, selectionFile(lines));
    }

    /// Smith has everything right (32 of 168), Adams everything wrong in region 1 (0), Brown the first round of it (8).
    void putThreePlayers()
    {
        putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
        putPlayer("Adams_QA.THC", "QA", "Adams", everyLowerTeamWins());
        putPlayer("Brown_TB.THC", "TB", "Brown", without(everyUpperTeamWins(), 25, 31));
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

    void dragHeading(std::size_t from, std::optional<std::size_t> to)
    {
        screen.msgScoreDisplay.columnPressed(from);
        screen.msgScoreDisplay.columnReleased(to);
    }

    std::vector<std::string> boardCallsSince(std::size_t first) const
    {
        return {board.calls.begin() + static_cast<std::ptrdiff_t>(first), board.calls.end()};
    }
};

} // namespace tallyhoop::test
