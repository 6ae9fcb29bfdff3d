// screens/board/bracket_panel.cpp - makes the labels once, and derives all they show from the picture.
#include "screens/board/bracket_panel.h"

#include "screens/board/board_words.h"

namespace tallyhoop {

BracketPanel::BracketPanel(ui::Screen* owner) : m_owner{owner}
{
    for (std::size_t i = 0; i < kRoundNames.size(); ++i) {
        lblRoundName[i].text = kRoundNames.at(i);
        pointsLabel(i).explanation = spokenPayoff(roundOfCaption(i)) + ".";
    }
    for (const TeamRow row : allTeamRows()) {
        txtSeed[row].locked = true;
        txtSeed[row].tabStop = false;
        lblRegion[positionOf(row)].toolTip = "Left Click or Drag to Select";
    }
    makeTabStop(allPositions().front());
}

void BracketPanel::showBracket(const BoardPicture& picture, bool scoreListOpen)
{
    showTitles(picture);
    showPlaces(picture, scoreListOpen);
    const auto enable = [scoreListOpen](auto&... controls) { ((controls.enabled = !scoreListOpen), ...); };
    const auto enableAll = [&enable](auto& controls) {
        for (std::size_t i = 0; i < controls.size(); ++i)
            enable(controls[i]);
    };
    enable(lblTitle, lblChampion, lblDemoMode);
    enableAll(lblRegionTitle);
    enableAll(lblRoundName);
    enableAll(lblInfo);
    enableAll(lblInfoRight);
    enableAll(txtSeed);
    enableAll(lblRegion);
    enableAll(lblResult);
}

void BracketPanel::showTitles(const BoardPicture& picture)
{
    lblTitle.text = picture.field.title;
    for (std::size_t region = 0; region < lblRegionTitle.size(); ++region)
        lblRegionTitle[region].text = picture.field.regionTitles.at(region);
    for (std::size_t i = 0; i < kRoundNames.size(); ++i)
        pointsLabel(i).text = picture.field.payoffs.text(roundOfCaption(i));
    for (const TeamRow row : allTeamRows()) {
        txtSeed[row].text = picture.field.seedOf(row);
        txtSeed[row].spokenName = spokenSeed(picture.field, row);
    }
    lblDemoMode.visible = picture.demo;
}

void BracketPanel::showPlaces(const BoardPicture& picture, bool scoreListOpen)
{
    for (const Position position : allPositions()) {
        ui::Label& label = lblRegion[position];
        label.text = picture.bracket.at(position);
        label.spokenName = spokenPlace(picture, position);
        // Marks say what they mean; without them there is nothing to do here while the list is open.
        label.explanation = scoreListOpen && picture.verdicts == nullptr
                                ? "The list of scores is open; close it to change the bracket."
                                : explanationOf(picture, position);
        showMark(picture, position);
    }
}

void BracketPanel::showMark(const BoardPicture& picture, Position position)
{
    // A row of the field is always right or missing: only what was picked is worth a mark.
    const std::optional<Game> game = gameOf(position);
    const Verdict verdict = game ? picture.verdictAt(position) : Verdict::None;
    const PickMark mark = markOf(verdict);
    ui::Label& label = lblRegion[position];
    label.colour = mark.colour;
    label.background = mark.background;
    if (!game)
        return;
    ui::Label& marker = lblResult[*game];
    marker.text = mark.text;
    marker.colour = mark.colour;
    marker.background = mark.background;
    marker.spokenName = spokenMark(verdict, picture.names);
    marker.explanation = label.explanation;
}

std::optional<Position> BracketPanel::positionOfLabel(const ui::Control& control) const
{
    return lblRegion.indexOf<Position>(control);
}

void BracketPanel::makeTabStop(Position position)
{
    for (const Position other : allPositions())
        lblRegion[other].tabStop = other == position;
}

ui::Label& BracketPanel::pointsLabel(std::size_t caption)
{
    if (caption < 4)
        return lblInfo[caption];
    return caption < 8 ? lblInfoRight[caption - 4] : lblInfo[caption - 4];
}

} // namespace tallyhoop
