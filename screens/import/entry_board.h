// screens/import/entry_board.h - the bracket of an entry as controls: to be looked at, not to be changed.
#pragma once

#include "intake/review.h"
#include "pool/field.h"
#include "ui/control.h"

#include <optional>

namespace tallyhoop {

class EntryBoard
{
    ui::Screen* m_owner; // first: the controls list themselves with it

public:
    explicit EntryBoard(ui::Screen* owner);

    ui::ControlArray<ui::Label, kRegions> lblRegionTitle{m_owner, "lblRegionTitle"};
    ui::Label lblChampion{m_owner, "lblChampion", "CHAMPION"};
    ui::ControlArray<ui::Label, kPositions> lblRegion{m_owner, "lblRegion"};

    /// Marks picks that cannot be, and those that differ from the selection that would be replaced.
    /// @param row nullptr = no entry is shown
    void showEntry(const Field& field, const ReviewRow* row);

    /// @returns the position of a team's label, nothing for any other control
    std::optional<Position> positionOfLabel(const ui::Control& control) const;

    /// The bracket is one stop of the tab order: the place that had the focus last.
    void makeTabStop(Position position);

private:
    void showPlaces(const Field& field, const Bracket& picks);
    void markImpossible(const Field& field, const Bracket& picks);
    void markDifferent(const Bracket& picks, const Bracket& here);
    void mark(Position position, ui::Colour background, const std::string& words);
};

} // namespace tallyhoop
