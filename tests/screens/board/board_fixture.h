// tests/screens/board/board_fixture.h - a board in a scratch folder, with everything around it scripted.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "screens/board/board_screen.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace tallyhoop::test {

/// Whatever changes the board here lets it show its state afterwards, as the desk does in the windows.
class BoardTest : public ::testing::Test
{
protected:
    ScratchFolder scratch;
    FakePlatform platform;
    FakeScreens screens;
    Field field;
    std::optional<SavedPlayer> savedPlayer;
    std::optional<PlayerScore> listedPlayer;
    bool folderTroubleSaid = false;
    std::vector<std::filesystem::path> droppedFiles;
    DataFolder folder = scratch.folder();
    std::unique_ptr<BoardScreen> board;

    /// Team names "R1T0" .. "R4T15": region and first-round row.
    static std::string team(int region, int row)
    {
        return "R" + std::to_string(region + 1) + "T" + std::to_string(row);
    }

    static Field fieldOfTeams(const std::string& finalized)
    {
        Field made = defaultField();
        for (const TeamRow row : allTeamRows())
            made.teams[row] = team(regionOf(row), rowInRegion(row));
        made.finalized = finalized;
        return made;
    }

    void putField(const Field& made) { scratch.put(file_name::kSetup, setupFile(made)); }

    void putDemoMode() { scratch.put(file_name::kSettings, "1\r\n"); }

    static Entry emptyBracket(const std::string& initials, const std::string& name, const std::string& points)
    {
        return {startingBracket(fieldOfTeams("1")), initials, name, points, {}};
    }

    std::filesystem::path putSelection(const std::string& name, const Entry& entry)
    {
        return scratch.put(name, selectionFile(entry));
    }

    /// Results without a winner.
    void putNoResultsYet() { putSelection(file_name::kResults, emptyBracket("A", "FinalResults", "")); }

    BoardScreen& load()
    {
        board = std::make_unique<BoardScreen>(
            folder, platform.services, screens,
            BoardScreen::Shared{field, savedPlayer, listedPlayer, folderTroubleSaid, droppedFiles});
        board->load();
        board->showState();
        return *board;
    }

    /// A board with a finalized field.
    BoardScreen& loadFinalized()
    {
        putField(fieldOfTeams("1"));
        return load();
    }

    /// The team that a place shows.
    std::string& at(Position position) { return board->lblRegion[position].text; }
    std::string& at(int position) { return at(Position{position}); }

    void press(int position, MouseButton button = MouseButton::Left)
    {
        board->pressPosition(Position{position}, button);
        board->showState();
    }

    void drop(int position)
    {
        board->dropOnPosition(Position{position});
        board->showState();
    }

    void drag(int from, int to)
    {
        press(from);
        drop(to);
    }

    void click(int position) { drag(position, position); }

    void rightPress(int position) { press(position, MouseButton::Right); }

    bool key(ui::Control& control, const ui::KeyPress& keyPress)
    {
        const bool dealtWith = board->keyPressed(control, keyPress);
        board->showState();
        return dealtWith;
    }

    void fill(const std::string& initials, const std::string& name, const std::string& points)
    {
        board->txtPlayerInitials.text = initials;
        board->txtPlayerName.text = name;
        board->txtFinalPoints.text = points;
    }

    void open(const std::filesystem::path& file)
    {
        platform.dialogs.pick(file);
        board->mnuOpenSelection.click();
    }

    void save() { board->mnuSaveSelection.click(); }

    void saveAs(const std::filesystem::path& file)
    {
        platform.dialogs.pick(file);
        save();
    }

    void enterResults() { board->mnuGameResults.click(); }

    void score() { board->mnuScoreSelections.click(); }

    bool resultsMode() const { return board->document == "Game results"; }

    /// Whether the board's own picks are marked.
    bool marksShown() const { return board->cmdDefaultColors.visible; }

    /// Marks the picks as those of a player chosen in the list of scores.
    void showListedVerdicts(const std::optional<Verdicts>& verdicts)
    {
        listedPlayer.reset();
        if (verdicts) {
            listedPlayer.emplace();
            listedPlayer->fileName = "Demo Prophet_DP.THC";
            listedPlayer->points = 92;
            listedPlayer->maxPoints = 120;
            listedPlayer->verdicts = *verdicts;
        }
        board->showState();
    }

    void setScoreListOpen(bool isOpen)
    {
        if (isOpen)
            screens.open.insert(ScreenKind::Scores);
        else
            screens.open.erase(ScreenKind::Scores);
        board->showState();
    }

    /// A saved selection or results file.
    Entry saved(const std::string& name)
    {
        const Read<Entry> read = readSelection(scratch.get(name));
        EXPECT_FALSE(read.trouble) << name;
        return read.value;
    }

    static std::string savedAt(const Entry& entry, int position) { return entry.picks.at(Position{position}); }
};

} // namespace tallyhoop::test
