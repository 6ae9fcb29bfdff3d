// tests/screens/board/board_fixture.h - a board in a scratch folder, with everything around it scripted.
#pragma once

#include "base/lines.h"
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

class BoardTest : public ::testing::Test
{
protected:
    ScratchFolder scratch;
    FakePlatform platform;
    FakeScreens screens;
    modTallyhoop state;
    DataFolder folder = scratch.folder();
    std::unique_ptr<BoardScreen> board;

    /// Team names "R1T0" .. "R4T15": region and first-round row.
    static std::string team(int region, int row)
    {
        return "R" + std::to_string(region + 1) + "T" + std::to_string(row);
    }

    void putSetup(const std::string& finalized)
    {
        SetupLines lines = defaultSetupLines();
        for (int i = 0; i < kTeams; ++i)
            lines[static_cast<std::size_t>(i)] = team(i / 16, i % 16);
        lines[setup_line::kFinalized] = finalized;
        scratch.put(file_name::kSetup, setupFile(lines));
    }

    void putDemoMode() { scratch.put(file_name::kSettings, "1\r\n"); }

    SelectionLines emptyBracket(const std::string& initials, const std::string& name, const std::string& points)
    {
        SelectionLines lines;
        for (int region = 0; region < kRegions; ++region)
            for (int row = 0; row < kRowsPerRegion; ++row)
                lines[static_cast<std::size_t>(index(firstRoundPosition(region, row)) + 1)] = team(region, row);
        lines[selection_line::kInitials] = initials;
        lines[selection_line::kName] = name;
        lines[selection_line::kFinalPoints] = points;
        return lines;
    }

    std::filesystem::path putSelection(const std::string& name, const SelectionLines& lines)
    {
        return scratch.put(name, selectionFile(lines));
    }

    BoardScreen& load(Opening opening = Opening::Plain)
    {
        board = std::make_unique<BoardScreen>(folder, platform.services, state, screens, opening);
        board->load();
        return *board;
    }

    /// A board with a finalized field.
    BoardScreen& loadFinalized()
    {
        putSetup("1");
        return load();
    }

    std::string& at(int position) { return board->lblRegion[static_cast<std::size_t>(position)].text; }

    void click(int position)
    {
        board->PressPosition(position, MouseButton::Left);
        board->DropOnPosition(position);
    }

    void drag(int from, int to)
    {
        board->PressPosition(from, MouseButton::Left);
        board->DropOnPosition(to);
    }

    void rightPress(int position) { board->PressPosition(position, MouseButton::Right); }

    void fill(const std::string& initials, const std::string& name, const std::string& points)
    {
        board->txtPlayerInitials.text = initials;
        board->txtPlayerName.text = name;
        board->txtFinalPoints.text = points;
    }

    /// The lines of a saved selection or results file, line n at index n.
    SelectionLines saved(const std::string& name) { return readSelection(scratch.get(name)).value; }
};

} // namespace tallyhoop::test
