// screens/import/entry_board.cpp - texts, marks and words of the places.
#include "screens/import/entry_board.h"

#include "files/selection_file.h"
#include "pool/faults.h"
#include "screens/board/board_words.h"
#include "screens/import/entry_words.h"

namespace tallyhoop {

namespace {

constexpr ui::Colour kText{0, 0, 0};
constexpr ui::Colour kImpossible{255, 205, 205};
constexpr ui::Colour kDifferent{255, 231, 172};

} // namespace

EntryBoard::EntryBoard(ui::Screen* owner) : m_owner{owner} { makeTabStop(allPositions().front()); }

void EntryBoard::showEntry(const Field& field, const ReviewRow* row)
{
    for (std::size_t region = 0; region < lblRegionTitle.size(); ++region)
        lblRegionTitle[region].text = field.regionTitles.at(region);
    const bool isLegible = row != nullptr && row->handedIn.isLegible;
    const Bracket picks = isLegible ? shownPicks(row->handedIn.entry.picks) : startingBracket(field);
    showPlaces(field, picks);
    if (!isLegible)
        return;
    if (row->effect == Effect::Replaces && !row->seen.trouble)
        markDifferent(picks, readSelection(row->seen.bytes, startingBracket(field)).value.picks);
    if (row->effect == Effect::Refused)
        markImpossible(field, row->handedIn.entry.picks);
}

void EntryBoard::showPlaces(const Field& field, const Bracket& picks)
{
    const BoardPicture picture{field, picks};
    for (const Position position : allPositions()) {
        ui::Label& label = lblRegion[position];
        label.text = picks.at(position);
        label.spokenName = spokenPlace(picture, position);
        label.colour.reset();
        label.background.reset();
        label.explanation = picks.isEmpty(position) ? "This game has no pick."
                                                    : "As it was handed in; the arrow keys lead along the bracket.";
    }
}

void EntryBoard::markImpossible(const Field& field, const Bracket& picks)
{
    for (const Fault& fault : faultsOf(picks, field)) {
        if (fault.kind == FaultKind::NoPick)
            continue;
        mark(fault.position, kImpossible,
             fault.kind == FaultKind::OtherTeam ? "the field has another team here" : "does not play in this game");
    }
}

void EntryBoard::markDifferent(const Bracket& picks, const Bracket& here)
{
    for (const Position position : gamePositions())
        if (picks.at(position) != here.at(position))
            mark(position, kDifferent,
                 here.isEmpty(position) ? "open in the selection that is here"
                                        : "in the selection that is here: " + here.at(position));
}

void EntryBoard::mark(Position position, ui::Colour background, const std::string& words)
{
    ui::Label& label = lblRegion[position];
    label.colour = kText;
    label.background = background;
    label.spokenName += ", " + words;
    label.explanation = "Marked: " + words + ".";
}

std::optional<Position> EntryBoard::positionOfLabel(const ui::Control& control) const
{
    return lblRegion.indexOf<Position>(control);
}

void EntryBoard::makeTabStop(Position position)
{
    for (const Position other : allPositions())
        lblRegion[other].tabStop = other == position;
}

} // namespace tallyhoop
