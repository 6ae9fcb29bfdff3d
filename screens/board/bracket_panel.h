// screens/board/bracket_panel.h - the bracket on the board as controls: titles, seeds, teams, markers.
#pragma once

#include "screens/board/board_picture.h"
#include "ui/control.h"

#include <optional>

namespace tallyhoop {

/// Shows a picture of the board; holds nothing that could not be shown again.
class BracketPanel
{
    ui::Screen* m_owner; // first: the controls list themselves with it

public:
    explicit BracketPanel(ui::Screen* owner);

    ui::Label lblTitle{m_owner, "lblTitle"};
    ui::ControlArray<ui::Label, kRegions> lblRegionTitle{m_owner, "lblRegionTitle"};
    ui::ControlArray<ui::Label, kRoundNames.size()> lblRoundName{m_owner, "lblRoundName"};
    ui::ControlArray<ui::Label, kRounds> lblInfo{m_owner, "lblInfo"};     ///< points of rounds 1..6
    ui::ControlArray<ui::Label, 4> lblInfoRight{m_owner, "lblInfoRight"}; ///< points of rounds 1..4 once more
    ui::Label lblChampion{m_owner, "lblChampion", kChampionCaption};
    ui::ControlArray<ui::TextBox, kTeams> txtSeed{m_owner, "txtSeed"};
    ui::ControlArray<ui::Label, kPositions> lblRegion{m_owner, "lblRegion"};
    ui::ControlArray<ui::Label, kGames> lblResult{m_owner, "lblResult"};
    ui::Label lblDemoMode{m_owner, "lblDemoMode", kDemoModeCaption};

    /// @param scoreListOpen nothing on the board can be changed while the list of all scores is open
    void showBracket(const BoardPicture& picture, bool scoreListOpen);

    /// @returns the position of a team's label, nothing for any other control
    std::optional<Position> positionOfLabel(const ui::Control& control) const;

    /// The bracket is one stop of the tab order: the place that had the focus last.
    void makeTabStop(Position position);

    /// @returns the label of the points under one of kRoundNames
    ui::Label& pointsLabel(std::size_t caption);

private:
    void showTitles(const BoardPicture& picture);
    void showPlaces(const BoardPicture& picture, bool scoreListOpen);
    void showMark(const BoardPicture& picture, Position position);
};

} // namespace tallyhoop
