// screens/outlook/outlook_board.h - the bracket of the outlook as controls: teams as supposed, and what each game
// means.
#pragma once

#include "pool/field.h"
#include "screens/outlook/game_swings.h"
#include "ui/control.h"

#include <optional>
#include <span>

namespace tallyhoop {

/// What is supposed has this background, in light and in dark windows, and this text on it.
inline constexpr ui::Colour kSupposedBackground{255, 231, 172};
inline constexpr ui::Colour kSupposedText{0, 0, 0};

class OutlookBoard
{
    ui::Screen* m_owner; // first: the controls list themselves with it

public:
    explicit OutlookBoard(ui::Screen* owner);

    ui::ControlArray<ui::Label, kRegions> lblRegionTitle{m_owner, "lblRegionTitle"};
    ui::Label lblChampion{m_owner, "lblChampion", "CHAMPION"};
    ui::ControlArray<ui::Label, kPositions> lblRegion{m_owner, "lblRegion"};

    /// Beside a team that plays in an open game: how much it helps the chosen player if it wins, "+4.1"; grey where it
    /// does not matter; empty elsewhere.
    ui::ControlArray<ui::Label, kPositions> lblSwing{m_owner, "lblSwing"};

    /// The open game that is marked together with its two sides; nothing = none.
    std::optional<Position> markedGame;

    bool isMarked(Position position) const;

    /// @param entered a place where the supposed bracket differs from it has another background
    void showSupposed(const Field& field, const Bracket& entered, const Bracket& supposed);

    /// @param swings one for each open game; empty = nobody is chosen, or nothing is known yet
    void showSwings(std::span<const OpenGame> games, std::span<const double> swings);

    /// @returns the position of a team's label, nothing for any other control
    std::optional<Position> positionOfLabel(const ui::Control& control) const;

    /// The bracket is one stop of the tab order: the place that had the focus last.
    void makeTabStop(Position position);

private:
    void showSwing(Position side, double swing);
};

} // namespace tallyhoop
